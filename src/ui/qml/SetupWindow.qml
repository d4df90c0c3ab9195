import QtQuick
import QtQuick.Controls
import QtQuick.Window
import QuivraMac.Ui

// The first-run window: no title bar, its content reaching the top edge. The top strip moves the
// window and holds the only close button, since Escape is not a way out of every screen.
Window {
    id: window
    title: "Setup"
    flags: Qt.Window | Qt.FramelessWindowHint
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
            Accessible.name: "Close"
            onClicked: window.close()
            background: Rectangle {
                radius: width / 2
                color: closeButton.hovered ? Theme.red : Theme.withAlpha(Theme.textSecondary, 0.35)
            }
        }
    }
}
