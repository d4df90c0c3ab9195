import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QuivraMac.Ui

// The code to type on the phone with its countdown, a phone that is connecting, or a failure.
Item {
    id: step
    // The screen coming in answers keys from the start of its slide, the one leaving no more:
    // two screens answering the same key would make Qt fire neither.
    readonly property bool arrived: StackView.status === StackView.Active
                                    || StackView.status === StackView.Activating
    signal backClicked()
    signal retry()
    property Item defaultButton: Onboarding.pairingKind === Onboarding.Error ? retryButton : manualLink

    Shortcut {
        sequence: "Escape"
        enabled: step.arrived && Onboarding.pairingKind === Onboarding.Error
        onActivated: step.backClicked()
    }

    component InstructionStep: Row {
        id: instruction
        property int number
        property string text
        spacing: 12
        Rectangle {
            width: 24
            height: 24
            radius: 12
            color: Theme.card
            Text { textFormat: Text.PlainText; anchors.centerIn: parent; text: instruction.number; font.pixelSize: 13; font.weight: Font.DemiBold; color: Theme.text }
        }
        Text { textFormat: Text.PlainText; anchors.verticalCenter: parent.verticalCenter; text: instruction.text; font.pixelSize: 15; color: Theme.text }
    }
    component WaitingIndicator: Row {
        spacing: 4
        Repeater {
            model: 3
            Rectangle {
                id: dot
                required property int index
                width: 8
                height: 8
                radius: 4
                color: Theme.accentColor
                SequentialAnimation on opacity {
                    loops: Animation.Infinite
                    PauseAnimation { duration: 200 * dot.index }
                    SequentialAnimation {
                        loops: Animation.Infinite
                        NumberAnimation { from: 1; to: 0.3; duration: 600; easing.type: Easing.InOutQuad }
                        NumberAnimation { from: 0.3; to: 1; duration: 600; easing.type: Easing.InOutQuad }
                    }
                }
            }
        }
    }

    // The code's real time left while the code is on screen; when it is up, a new code. A
    // closed window or another step stops it.
    PairingCountdown {
        id: countdown
        objectName: "onboardingCountdown"
        session: ServerManager.pairingSession
        running: Onboarding.pairingKind === Onboarding.WaitingForDevice
                 && step.Window.window !== null && step.Window.window.visible
        onExpired: step.retry()
    }

    ColumnLayout {
        anchors.centerIn: parent
        width: parent.width - 96
        visible: Onboarding.pairingKind === Onboarding.WaitingForDevice
        spacing: 20
        RowLayout {
            Layout.alignment: Qt.AlignHCenter
            spacing: 48
            Column {
                Layout.alignment: Qt.AlignTop
                spacing: 12
                Rectangle {
                    width: 80
                    height: 100
                    radius: 12
                    color: Theme.card
                    SymbolImage { anchors.centerIn: parent; name: "iphone"; size: 48; color: Theme.text }
                }
                WaitingIndicator { anchors.horizontalCenter: parent.horizontalCenter }
            }
            Column {
                Layout.alignment: Qt.AlignTop
                spacing: 16
                InstructionStep { number: 1; text: qsTr("Open Quivra on your iPhone") }
                InstructionStep { number: 2; text: qsTr("Tap \"Add Mac\"") }
                InstructionStep { number: 3; text: qsTr("Enter this code:") }
                Row {
                    id: codeRow
                    objectName: "onboardingCode"
                    Accessible.role: Accessible.StaticText
                    Accessible.name: qsTr("Pairing code %1").arg(Onboarding.code)
                    spacing: 12
                    Repeater {
                        model: Onboarding.code.length
                        Rectangle {
                            id: box
                            required property int index
                            width: 48
                            height: 56
                            radius: 8
                            color: Theme.card
                            Text {
                                textFormat: Text.PlainText
                                anchors.centerIn: parent
                                text: Onboarding.code.charAt(box.index)
                                font.pixelSize: 32
                                font.weight: Font.Medium
                                font.family: Theme.monospace
                                color: Theme.text
                            }
                        }
                    }
                }
                // Under the code it belongs to.
                Text {
                    textFormat: Text.PlainText
                    objectName: "expiresText"
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                    x: (codeRow.width - width) / 2
                    text: qsTr("Expires in %1").arg(countdown.text)
                    font.pixelSize: 13
                    font.weight: countdown.urgent ? Font.Medium : Font.Normal
                    color: countdown.urgent ? Theme.orange : Theme.textSecondary
                }
            }
        }
        Text {
            objectName: "onboardingGuessingText"
            Layout.alignment: Qt.AlignHCenter
            visible: ServerManager.pairingGuessers.length > 0
            text: Ui.guessingText(ServerManager.pairingGuessers)
            textFormat: Text.PlainText
            horizontalAlignment: Text.AlignHCenter // set: see PairingSection's guessing line
            font.pixelSize: 13
            font.weight: Font.Medium
            color: Theme.orange
        }
        Divider {}
        Row {
            Layout.alignment: Qt.AlignHCenter
            spacing: 6
            Text { textFormat: Text.PlainText; text: qsTr("Having trouble?"); font.pixelSize: 13; color: Theme.textSecondary }
            AbstractButton {
                id: manualLink
                objectName: "manualSetupLink"
                text: qsTr("Try manual setup")
                Accessible.name: text
                onClicked: manual.open()
                FocusRing { anchors.margins: -2; radius: 3 }
                contentItem: Text { textFormat: Text.PlainText; text: qsTr("Try manual setup"); font.pixelSize: 13; font.weight: Font.Medium; color: Theme.accentColor }
            }
        }
    }

    Column {
        anchors.centerIn: parent
        visible: Onboarding.pairingKind === Onboarding.DeviceConnecting
        spacing: 12
        BusyIndicator { anchors.horizontalCenter: parent.horizontalCenter; running: parent.visible; width: 64; height: 64 }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            textFormat: Text.StyledText
            text: Ui.deviceConnectingText(Onboarding.deviceName)
            font.pixelSize: 20
            color: Theme.text
        }
        Text { textFormat: Text.PlainText; anchors.horizontalCenter: parent.horizontalCenter; text: qsTr("Exchanging keys..."); font.pixelSize: 14; color: Theme.textSecondary }
    }

    Column {
        anchors.centerIn: parent
        width: parent.width - 96
        visible: Onboarding.pairingKind === Onboarding.Error
        spacing: 14
        SymbolImage { anchors.horizontalCenter: parent.horizontalCenter; name: "xmark.circle.fill"; size: 64; color: Theme.red }
        Text { textFormat: Text.PlainText; anchors.horizontalCenter: parent.horizontalCenter; text: Onboarding.errorTitle; font.pixelSize: 24; font.weight: Font.DemiBold; color: Theme.text }
        Text {
            textFormat: Text.PlainText
            width: parent.width
            text: Onboarding.errorMessage
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: 15
            color: Theme.textSecondary
        }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 12
            OnboardingButton { title: qsTr("Back"); primary: false; onClicked: step.backClicked() }
            OnboardingButton { id: retryButton; title: qsTr("Try Again"); onClicked: step.retry() }
        }
    }

    // What a person needs to add this computer in the phone app by hand.
    // Focus goes in with it, Tab keeps it there, and it comes back to the link when it closes.
    Popup {
        id: manual
        objectName: "manualSetupSheet"
        anchors.centerIn: parent
        modal: true
        focus: true
        closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutside
        padding: 20
        onOpened: if (Ui.canMoveFocus) closeButton.forceActiveFocus()
        onClosed: if (Ui.canMoveFocus) manualLink.forceActiveFocus()
        background: Rectangle { radius: 12; color: Theme.card }
        Column {
            spacing: 12
            Text { textFormat: Text.PlainText; text: qsTr("Add this computer by hand"); font.pixelSize: 17; font.weight: Font.DemiBold; color: Theme.text }
            Text { textFormat: Text.PlainText; text: Ui.manualSetupDetails; font.family: Theme.monospace; font.pixelSize: 13; color: Theme.text }
            Row {
                spacing: 12
                OnboardingButton {
                    id: copyButton
                    title: qsTr("Copy")
                    primary: false
                    onClicked: Ui.copyText(Ui.manualSetupDetails)
                    KeyNavigation.tab: closeButton
                    KeyNavigation.backtab: closeButton
                }
                OnboardingButton {
                    id: closeButton
                    objectName: "manualSetupClose"
                    title: qsTr("Close")
                    onClicked: manual.close()
                    KeyNavigation.tab: copyButton
                    KeyNavigation.backtab: copyButton
                }
            }
        }
    }
}
