import QtQuick
import QtQuick.Window

// The panel: a frameless pop-over beside the tray icon that closes when it loses focus, or a
// small ordinary window where the desktop has no tray.
Window {
    id: window
    property bool popover: true
    // Set by whoever shows the pop-over while the hidden panel still counts as active: X11
    // reports the earlier loss of focus late (Qt waits a moment for a focus that may
    // follow), and that report must not close the panel just shown.
    property bool staleFocusLoss: false
    title: "QuivraMac"
    flags: popover ? (Qt.Tool | Qt.FramelessWindowHint) : Qt.Window
    width: view.implicitWidth
    height: view.implicitHeight
    minimumWidth: width
    maximumWidth: width
    color: Theme.background
    onActiveChanged: {
        if (active)
            return
        if (staleFocusLoss)
            staleFocusLoss = false
        else if (popover)
            hide()
    }
    // When the focus comes back before the platform gave up on it, no late report follows.
    Timer {
        running: window.staleFocusLoss
        interval: 1000
        onTriggered: window.staleFocusLoss = false
    }
    Shortcut {
        sequence: "Escape"
        onActivated: window.popover ? window.hide() : window.close()
    }
    MenuBarView {
        id: view
        anchors.fill: parent
    }
}
