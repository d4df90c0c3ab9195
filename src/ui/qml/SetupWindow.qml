import QtQuick
import QtQuick.Controls
import QtQuick.Window
import QuivraMac.Ui

// The first-run window. Where it has no title bar (macOS), its content reaches the top edge and a
// top strip of its own moves the window and holds the close button, since Escape is not a way
// out of every screen; elsewhere the desktop's title bar does both.
Window {
    id: window
    title: Wording.setupWindowTitle
    flags: Wording.setupWindowFrameless ? Qt.Window | Qt.FramelessWindowHint : Qt.Window
    width: 600
    height: 500
    minimumWidth: 600
    maximumWidth: 600
    minimumHeight: 500
    maximumHeight: 500
    color: Theme.background
    onVisibleChanged: if (visible) content.restart()
    Connections {
        target: Onboarding
        function onDismiss() { window.close() }
    }
    OnboardingView { id: content; anchors.fill: parent }

    Item {
        visible: Wording.setupWindowFrameless
        width: parent.width
        height: 28
        DragHandler {
            target: null
            onActiveChanged: if (active) window.startSystemMove()
        }
        AbstractButton {
            id: closeButton
            objectName: "setupCloseButton"
            x: parent.width - width - 12
            anchors.verticalCenter: parent.verticalCenter
            width: 14
            height: 14
            Accessible.name: qsTr("Close")
            onClicked: window.close()
            FocusRing {}
            background: Rectangle {
                radius: width / 2
                color: closeButton.hovered ? Theme.red : Theme.withAlpha(Theme.textSecondary, 0.35)
            }
        }
    }
}
