import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QuivraMac.Ui

// "Pair New Device", or the code with its countdown while pairing mode is on.
ColumnLayout {
    id: section
    property bool isPairing
    property string pairingToken
    signal startPairing()
    signal stopPairing()

    spacing: 8
    MenuRowButton {
        visible: !section.isPairing
        title: "Pair New Device"
        symbol: "iphone.gen3"
        onClicked: section.startPairing()
    }
    Loader {
        active: section.isPairing
        visible: active
        Layout.fillWidth: true
        sourceComponent: ColumnLayout {
            spacing: 12
            // The code's real time left, read afresh whenever the panel is shown.
            PairingCountdown {
                id: countdown
                objectName: "pairingCountdown"
                session: ServerManager.pairingSession
                running: section.Window.window !== null && section.Window.window.visible
            }

            RowLayout {
                Text {
                    text: "Pairing Mode"
                    font.pixelSize: 11
                    font.weight: Font.Medium
                    color: Theme.textSecondary
                }
                Item { Layout.fillWidth: true }
                Text {
                    objectName: "countdownText"
                    text: countdown.text
                    font.pixelSize: 11
                    font.family: Theme.monospace
                    color: countdown.urgent ? Theme.orange : Theme.textSecondary
                }
            }
            Row {
                objectName: "codeBoxes"
                spacing: 6
                Repeater {
                    // By position, so repeated digits are boxes of their own.
                    model: section.pairingToken.length
                    delegate: Rectangle {
                        required property int index
                        width: 32
                        height: 40
                        radius: 6
                        color: Theme.controlBackground
                        Text {
                            anchors.centerIn: parent
                            text: section.pairingToken.charAt(index)
                            font.pixelSize: 20
                            font.family: Theme.monospace
                            font.weight: Font.Medium
                            color: Theme.text
                        }
                    }
                }
            }
            Text {
                text: "Enter this code in Quivra on your iPhone"
                font.pixelSize: 11
                color: Theme.textSecondary
            }
            AbstractButton {
                text: "Stop Pairing"
                Accessible.name: text
                contentItem: Text {
                    text: "Stop Pairing"
                    font.pixelSize: 12
                    font.weight: Font.Medium
                    color: Theme.textSecondary
                }
                onClicked: section.stopPairing()
            }
        }
    }
}
