import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QuivraMac.Ui

Item {
    id: step
    // The screen coming in answers keys from the start of its slide, the one leaving no more:
    // two screens answering the same key would make Qt fire neither.
    readonly property bool arrived: StackView.status === StackView.Active
                                    || StackView.status === StackView.Activating
    property Item defaultButton: doneButton
    signal done()
    property real checkmarkScale: 0.5
    property real checkmarkOpacity: 0

    component MenuBarCallout: Column {
        spacing: 6
        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            width: bar.implicitWidth + 32
            height: bar.implicitHeight + 16
            radius: 8
            color: Theme.card
            Row {
                id: bar
                anchors.centerIn: parent
                spacing: 12
                SymbolImage { name: "wifi"; size: 16; color: Theme.textSecondary }
                SymbolImage { name: "battery.100"; size: 16; color: Theme.textSecondary }
                Rectangle {
                    width: 24
                    height: 20
                    radius: 4
                    color: "transparent"
                    border.width: 1.5
                    border.color: Theme.accentColor
                    SymbolImage { anchors.centerIn: parent; name: "terminal.fill"; size: 16; color: Theme.text }
                }
            }
        }
        SymbolImage { anchors.right: parent.right; anchors.rightMargin: 22; name: "arrow.up"; size: 20; color: Theme.text }
        Text { textFormat: Text.PlainText; anchors.horizontalCenter: parent.horizontalCenter; text: qsTr("QuivraMac lives here"); font.pixelSize: 14; font.weight: Font.Medium; color: Theme.text }
    }

    Shortcut {
        sequences: ["Return", "Enter"]
        enabled: step.arrived
        onActivated: step.done()
    }
    ColumnLayout {
        anchors.centerIn: parent
        spacing: 14
        SymbolImage {
            Layout.alignment: Qt.AlignHCenter
            name: "checkmark.circle.fill"
            size: 80
            color: Theme.green
            scale: step.checkmarkScale
            opacity: step.checkmarkOpacity
        }
        Text { textFormat: Text.PlainText; Layout.alignment: Qt.AlignHCenter; text: qsTr("You're all set!"); font.pixelSize: 28; font.weight: Font.DemiBold; color: Theme.text }
        Text {
            textFormat: Text.PlainText
            objectName: "connectedText"
            Layout.alignment: Qt.AlignHCenter
            text: Wording.connectedToThisMachine(Onboarding.deviceName)
            font.pixelSize: 15
            color: Theme.textSecondary
        }
        MenuBarCallout { Layout.alignment: Qt.AlignHCenter }
        Row {
            Layout.alignment: Qt.AlignHCenter
            spacing: 8
            CheckBox {
                objectName: "launchAtLogin"
                text: qsTr("Launch at login")
                Accessible.name: text
                font.pixelSize: 14
                checked: Ui.launchAtLogin
                onToggled: Ui.launchAtLogin = checked
            }
            Text { textFormat: Text.PlainText; anchors.verticalCenter: parent.verticalCenter; text: qsTr("Recommended"); font.pixelSize: 12; color: Theme.textSecondary }
        }
        OnboardingButton { id: doneButton; Layout.alignment: Qt.AlignHCenter; title: qsTr("Done"); onClicked: step.done() }
    }
    ParallelAnimation {
        running: true
        SpringAnimation { target: step; property: "checkmarkScale"; to: 1; spring: 5; damping: 0.25; epsilon: 0.005 }
        NumberAnimation { target: step; property: "checkmarkOpacity"; to: 1; duration: 350 }
    }
}
