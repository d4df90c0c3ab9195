import QtQuick
import QtQuick.Window

// The panel: a frameless pop-over beside the tray icon that closes when it loses focus, or a
// small ordinary window where the desktop has no tray.
Window {
    id: window
    property bool popover: true
    title: "QuivraMac"
    flags: popover ? (Qt.Tool | Qt.FramelessWindowHint) : Qt.Window
    width: view.implicitWidth
    height: view.implicitHeight
    minimumWidth: width
    maximumWidth: width
    color: Theme.background
    onActiveChanged: if (popover && !active) hide()
    MenuBarView {
        id: view
        anchors.fill: parent
    }
}
