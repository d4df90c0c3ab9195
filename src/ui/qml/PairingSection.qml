import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QuivraMac.Ui

// "Pair New Device", or the code with its countdown while pairing mode is on, and who is guessing
// the code, also after their guesses switched pairing off. What the loaded code shows comes from
// the singletons, as ids outside a component are unknown to qmllint 6.4.
ColumnLayout {
    spacing: 8
    MenuRowButton {
        visible: !ServerManager.isPairing
        title: qsTr("Pair New Device")
        symbol: "iphone.gen3"
        onClicked: ServerManager.togglePairingMode()
    }
    Loader {
        active: ServerManager.isPairing
        visible: active
        Layout.fillWidth: true
        sourceComponent: ColumnLayout {
            id: code
            spacing: 12
            // The code's real time left, read afresh whenever the panel is shown.
            PairingCountdown {
                id: countdown
                objectName: "pairingCountdown"
                session: ServerManager.pairingSession
                running: code.Window.window !== null && code.Window.window.visible
            }

            RowLayout {
                Text {
                    textFormat: Text.PlainText
                    text: qsTr("Pairing Mode")
                    font.pixelSize: 11
                    font.weight: Font.Medium
                    color: Theme.textSecondary
                }
                Item { Layout.fillWidth: true }
                Text {
                    textFormat: Text.PlainText
                    objectName: "countdownText"
                    Accessible.role: Accessible.StaticText
                    Accessible.name: qsTr("Time left: %1").arg(countdown.text)
                    text: countdown.text
                    font.pixelSize: 11
                    font.family: Theme.monospace
                    color: countdown.urgent ? Theme.orange : Theme.textSecondary
                }
            }
            // As wide as the rows around it, so that the right edges line up.
            RowLayout {
                objectName: "codeBoxes"
                Layout.fillWidth: true
                // One six-digit number to a screen reader, not six boxes.
                Accessible.role: Accessible.StaticText
                Accessible.name: qsTr("Pairing code %1").arg(ServerManager.pairingToken)
                spacing: 6
                Repeater {
                    // By position, so repeated digits are boxes of their own.
                    model: ServerManager.pairingToken.length
                    delegate: Rectangle {
                        id: box
                        required property int index
                        Layout.fillWidth: true
                        Layout.preferredWidth: 32
                        Layout.preferredHeight: 40
                        radius: 6
                        color: Theme.controlBackground
                        Text {
                            textFormat: Text.PlainText
                            anchors.centerIn: parent
                            text: ServerManager.pairingToken.charAt(box.index)
                            font.pixelSize: 20
                            font.family: Theme.monospace
                            font.weight: Font.Medium
                            color: Theme.text
                        }
                    }
                }
            }
            Text {
                textFormat: Text.PlainText
                Layout.fillWidth: true
                Layout.preferredWidth: 0
                wrapMode: Text.Wrap
                text: qsTr("Enter this code in Quivra on your iPhone")
                font.pixelSize: 11
                color: Theme.textSecondary
            }
            AbstractButton {
                text: qsTr("Stop Pairing")
                Accessible.name: text
                contentItem: Text {
                    textFormat: Text.PlainText
                    text: qsTr("Stop Pairing")
                    font.pixelSize: 12
                    font.weight: Font.Medium
                    color: Theme.textSecondary
                }
                onClicked: ServerManager.togglePairingMode()
                FocusRing {}
            }
        }
    }
    Text {
        objectName: "guessingText"
        visible: ServerManager.pairingGuessers.length > 0
        Layout.fillWidth: true
        text: Ui.guessingText(ServerManager.pairingGuessers)
        textFormat: Text.PlainText
        // Set, not implicit: an empty text with an implicit alignment asks the input method for
        // its direction, which crashes Qt 6.4 on a Wayland desktop without a seat.
        horizontalAlignment: Text.AlignLeft
        wrapMode: Text.Wrap
        font.pixelSize: 11
        font.weight: Font.Medium
        color: Theme.orange
    }
}
