pragma Singleton
import QtQuick

// Named colours with light and dark values that follow the system's colour scheme (read from
// the palette, as Qt 6.4 has no scheme setting of its own), and the system colours the views use.
QtObject {
    readonly property SystemPalette palette: SystemPalette { colorGroup: SystemPalette.Active }
    readonly property bool dark: palette.window.hslLightness < 0.5

    readonly property color background: dark ? "#1e1e20" : "#ffffff"
    readonly property color card: dark ? "#2c2c2e" : "#f2f2f7"
    readonly property color text: dark ? "#f5f5f7" : "#1d1d1f"
    readonly property color textSecondary: dark ? "#98989d" : "#6e6e73"
    // Every text colour stands at 4.5:1 or more on the background and the card (WCAG AA), which
    // the system's own blue, red and orange do not; the layout check measures it.
    readonly property color accentColor: dark ? "#4da3ff" : "#0060c7"
    // Behind white text: a highlighted button, a destructive one.
    readonly property color accentFill: dark ? "#0b6bd6" : "#0060c7"
    readonly property color redFill: dark ? "#d92c20" : "#d70015"

    // Marks and dots at 3:1 or more on the background and the card, as controls must be.
    readonly property color green: dark ? "#30d158" : "#1f8a3a"
    readonly property color gray: dark ? "#8e8e93" : "#848489"
    readonly property color orange: dark ? "#ff9f0a" : "#c93400"
    readonly property color red: dark ? "#ff6961" : "#d70015"
    readonly property color yellow: dark ? "#ffd60a" : "#ffcc00"
    readonly property color purple: dark ? "#bf5af2" : "#af52de"
    readonly property color controlBackground: dark ? "#3a3a3c" : "#e9e9ed"
    readonly property color textBackground: dark ? "#1c1c1e" : "#ffffff"
    readonly property color separator: dark ? "#3d3d40" : "#dcdce0"
    readonly property color controlPressed: dark ? "#48484a" : "#d8d8dc"
    readonly property color controlBorder: dark ? "#636366" : "#b8b8bd"
    // An off switch's track, at 3:1 or more against the background and the card.
    readonly property color switchOff: dark ? "#7c7c80" : "#848489"
    // A switch's knob stays light on both schemes, as the desktop's own switches do.
    readonly property color knob: "#ffffff"

    readonly property string monospace: "monospace"

    function named(name) {
        return { "Background": background, "Card": card, "Text": text,
                 "TextSecondary": textSecondary, "AccentColor": accentColor }[name]
    }
    function withAlpha(c, alpha) { return Qt.rgba(c.r, c.g, c.b, alpha) }
}
