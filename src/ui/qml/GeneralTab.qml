import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QuivraMac.Ui

// The automatic-start switch, port, address, running state, uptime, start and stop.
ScrollView {
    id: tab
    property alias installLink: installLink
    contentWidth: availableWidth

    component SectionBox: Rectangle {
        default property alias rows: content.data
        property string header
        Layout.fillWidth: true
        implicitHeight: content.implicitHeight + 24
        radius: 8
        color: Theme.card
        ColumnLayout {
            id: content
            x: 12
            y: 12
            width: parent.width - 24
            spacing: 10
        }
    }
    component SectionHeader: Text {
        textFormat: Text.PlainText
        font.pixelSize: 11
        font.weight: Font.DemiBold
        color: Theme.textSecondary
    }

    ColumnLayout {
        width: tab.availableWidth - 40
        x: 20
        y: 16
        spacing: 8

        SectionHeader { text: qsTr("Server") }
        SectionBox {
            RowLayout {
                Layout.fillWidth: true
                Text { textFormat: Text.PlainText; text: qsTr("Start server automatically"); font.pixelSize: 13; color: Theme.text }
                Item { Layout.fillWidth: true }
                ThemedSwitch {
                    objectName: "autoStartSwitch"
                    Accessible.name: qsTr("Start server automatically")
                    checked: Ui.autoStartServer
                    onToggled: Ui.autoStartServer = checked
                }
            }
            FormRow {
                label: qsTr("Port")
                Text { textFormat: Text.PlainText; text: String(ServerManager.port); font.pixelSize: 13; color: Theme.textSecondary }
            }
            FormRow {
                label: qsTr("Local IP")
                TextEdit {
                    text: ServerManager.localIP
                    readOnly: true
                    selectByMouse: true
                    font.pixelSize: 13
                    color: Theme.textSecondary
                }
            }
        }

        SectionHeader { text: qsTr("Status"); Layout.topMargin: 8 }
        SectionBox {
            FormRow {
                label: Wording.statusRowLabel
                Rectangle {
                    anchors.verticalCenter: parent.verticalCenter
                    width: 8
                    height: 8
                    radius: 4
                    color: ServerManager.isRunning ? Theme.green : Theme.gray
                    Accessible.role: Accessible.Graphic
                    Accessible.name: ServerManager.isRunning ? qsTr("Server running") : qsTr("Server stopped")
                }
                Text {
                    textFormat: Text.PlainText
                    objectName: "runningText"
                    text: ServerManager.isRunning ? qsTr("Running") : qsTr("Stopped")
                    font.pixelSize: 13
                    color: Theme.textSecondary
                }
            }
            InstallLink { id: installLink; visible: Ui.etserverMissing }
            Text {
                textFormat: Text.PlainText
                objectName: "statusReason"
                Layout.fillWidth: true
                Layout.topMargin: -6
                visible: text !== ""
                text: ServerManager.failureReason
                horizontalAlignment: Text.AlignRight
                wrapMode: Text.Wrap
                font.pixelSize: 11
                color: Theme.textSecondary
            }
            // Kept in the layout while stopped, only not shown, so that the button below does not
            // jump as the server starts and stops.
            FormRow {
                objectName: "uptimeRow"
                label: qsTr("Uptime")
                opacity: ServerManager.isRunning ? 1 : 0
                Accessible.ignored: !ServerManager.isRunning
                Text {
                    id: uptimeText
                    textFormat: Text.PlainText
                    objectName: "uptimeText"
                    text: Ui.uptimeText(ServerManager.uptime)
                    font.pixelSize: 13
                    color: Theme.textSecondary
                    // Not while another tab covers it: a tick nobody sees still wakes the app.
                    UptimeWatch {
                        manager: ServerManager
                        active: ServerManager.isRunning && uptimeText.visible
                                && uptimeText.Window.window !== null
                                && uptimeText.Window.window.visible
                    }
                }
            }
            RowLayout {
                Item { Layout.fillWidth: true }
                Button {
                    objectName: "startStopButton"
                    text: ServerManager.isRunning ? qsTr("Stop Server") : qsTr("Start Server")
                    Accessible.name: text
                    onClicked: Ui.toggleServer()
                }
            }
        }
    }
}
