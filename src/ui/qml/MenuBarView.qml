import QtQuick
import QtQuick.Layouts
import QuivraMac.Ui

// The panel under the menu-bar item: server status and switch, pairing, windows, quit.
ThemedSurface {
    id: panel
    implicitWidth: 280
    implicitHeight: column.implicitHeight + 24

    ColumnLayout {
        id: column
        x: 12
        y: 12
        width: panel.width - 24
        spacing: 0

        HeaderSection {
            Layout.fillWidth: true
            isRunning: ServerManager.isRunning
            port: ServerManager.port
            failureReason: ServerManager.failureReason
            onToggle: Ui.toggleServer()
        }
        MenuRowButton {
            objectName: "installEtRow"
            visible: Ui.etserverMissing
            title: qsTr("How to install Eternal Terminal...")
            symbol: "questionmark.circle"
            onClicked: Ui.openInstallSteps()
        }
        Divider {}
        PairingSection {
            Layout.fillWidth: true
        }
        MenuRowButton {
            objectName: "lastPairedRow"
            visible: Ui.devices.count > 0
            title: qsTr("Last paired: %1").arg(Ui.devices.newestName)
            symbol: "checkmark.circle.fill"
            onClicked: Ui.openSettings(Ui.DevicesTab)
        }
        Divider {}
        MenuRowButton {
            title: qsTr("Setup Assistant...")
            onClicked: Ui.openWindow("onboarding")
        }
        MenuRowButton {
            title: qsTr("Settings...")
            onClicked: Ui.openWindow("settings")
        }
        Divider {}
        MenuRowButton {
            title: qsTr("Quit QuivraMac")
            onClicked: Ui.quit()
        }
    }
}
