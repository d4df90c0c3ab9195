import QtQuick
import QtQuick.Layouts

// The panel under the menu-bar item: server status and switch, pairing, windows, quit.
Rectangle {
    id: panel
    implicitWidth: 280
    implicitHeight: column.implicitHeight + 24
    color: Theme.background

    ColumnLayout {
        id: column
        x: 12
        y: 12
        width: panel.width - 24
        spacing: 0

        HeaderSection {
            Layout.fillWidth: true
            isRunning: serverManager.isRunning
            port: serverManager.port
            onToggle: ui.toggleServer()
        }
        Divider {}
        PairingSection {
            Layout.fillWidth: true
            isPairing: serverManager.isPairing
            pairingToken: serverManager.pairingToken
            onStartPairing: serverManager.togglePairingMode()
            onStopPairing: serverManager.togglePairingMode()
        }
        Divider {}
        MenuRowButton {
            title: "Setup Assistant..."
            onClicked: ui.openWindow("onboarding")
        }
        MenuRowButton {
            title: "Settings..."
            onClicked: ui.openWindow("settings")
        }
        Divider {}
        MenuRowButton {
            title: "Quit QuivraMac"
            onClicked: ui.quit()
        }
    }
}
