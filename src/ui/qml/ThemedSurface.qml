import QtQuick
import QuivraMac.Ui

// A window's root: the background colour, and the palette every standard control below takes
// its colours from, so that buttons, switches, check boxes, spinners and scroll bars follow the
// light or dark scheme with the rest.
Rectangle {
    color: Theme.background

    palette.window: Theme.background
    palette.windowText: Theme.text
    palette.base: Theme.textBackground
    palette.alternateBase: Theme.card
    palette.text: Theme.text
    palette.placeholderText: Theme.textSecondary
    palette.button: Theme.controlBackground
    palette.buttonText: Theme.text
    palette.brightText: "#ffffff"
    palette.highlight: Theme.accentColor
    palette.highlightedText: "#ffffff"
    palette.light: Theme.controlPressed
    palette.midlight: Theme.controlBackground
    palette.mid: Theme.controlBorder
    palette.dark: Theme.accentFill
    palette.shadow: Theme.separator
    palette.toolTipBase: Theme.card
    palette.toolTipText: Theme.text
}
