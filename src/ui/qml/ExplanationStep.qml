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
    property Item defaultButton: continueButton
    signal continueClicked()
    signal backClicked()

    component DeviceIcon: Column {
        id: device
        property string systemName
        property string label
        spacing: 8
        Rectangle {
            width: 80
            height: 80
            radius: 16
            color: Theme.card
            SymbolImage { anchors.centerIn: parent; name: device.systemName; size: 48; color: Theme.text }
        }
        Text {
            textFormat: Text.PlainText
            anchors.horizontalCenter: parent.horizontalCenter
            text: device.label
            font.pixelSize: 13
            font.weight: Font.Medium
            color: Theme.text
        }
    }
    // Four dots pulsing in a running wave toward the chevron.
    component ConnectionArrow: Row {
        spacing: 6
        Repeater {
            model: 4
            Rectangle {
                id: dot
                required property int index
                anchors.verticalCenter: parent.verticalCenter
                width: 6
                height: 6
                radius: 3
                color: Theme.accentColor
                SequentialAnimation on opacity {
                    loops: Animation.Infinite
                    PauseAnimation { duration: 150 * dot.index }
                    SequentialAnimation {
                        loops: Animation.Infinite
                        NumberAnimation { from: 1; to: 0.3; duration: 400; easing.type: Easing.InOutQuad }
                        NumberAnimation { from: 0.3; to: 1; duration: 400; easing.type: Easing.InOutQuad }
                    }
                }
            }
        }
        SymbolImage { anchors.verticalCenter: parent.verticalCenter; name: "chevron.right"; size: 12; color: Theme.accentColor }
    }
    component FeatureBullet: Row {
        id: bullet
        property string icon
        property string text
        spacing: 12
        Item {
            width: 24
            height: 20
            SymbolImage { anchors.centerIn: parent; name: bullet.icon; size: 14; color: Theme.accentColor }
        }
        Text { textFormat: Text.PlainText; text: bullet.text; font.pixelSize: 15; color: Theme.text }
    }

    Shortcut {
        sequences: ["Return", "Enter"]
        enabled: step.arrived
        onActivated: step.continueClicked()
    }
    Shortcut {
        sequence: "Escape"
        enabled: step.arrived
        onActivated: step.backClicked()
    }
    ColumnLayout {
        anchors.centerIn: parent
        spacing: 20
        Row {
            Layout.alignment: Qt.AlignHCenter
            spacing: 20
            DeviceIcon { systemName: "iphone"; label: "iPhone" }
            ConnectionArrow { height: 80 }
            DeviceIcon { systemName: "desktopcomputer"; label: Wording.machineLabel }
        }
        Text {
            textFormat: Text.PlainText
            Layout.alignment: Qt.AlignHCenter
            text: qsTr("A bridge that never drops.")
            font.pixelSize: 24
            font.weight: Font.DemiBold
            color: Theme.text
        }
        Text {
            textFormat: Text.PlainText
            Layout.alignment: Qt.AlignHCenter
            horizontalAlignment: Text.AlignHCenter
            text: Wording.explanationBody
            font.pixelSize: 15
            color: Theme.textSecondary
        }
        Column {
            Layout.alignment: Qt.AlignHCenter
            spacing: 10
            FeatureBullet { icon: "wifi"; text: qsTr("Survives WiFi switches and sleep") }
            FeatureBullet { icon: "arrow.clockwise"; text: qsTr("Reconnects automatically") }
            FeatureBullet { icon: "menubar.rectangle"; text: Wording.explanationTrayRow }
        }
        Row {
            Layout.alignment: Qt.AlignHCenter
            spacing: 12
            OnboardingButton { title: qsTr("Back"); primary: false; onClicked: step.backClicked() }
            OnboardingButton { id: continueButton; title: qsTr("Continue"); onClicked: step.continueClicked() }
        }
    }
}
