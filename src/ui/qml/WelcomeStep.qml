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
    signal continueClicked()
    // Where the keyboard starts on this screen.
    property Item defaultButton: continueButton
    property real iconScale: 0.8
    property real iconOpacity: 0

    Shortcut {
        sequences: ["Return", "Enter"]
        enabled: step.arrived
        onActivated: step.continueClicked()
    }
    ColumnLayout {
        anchors.centerIn: parent
        spacing: 0
        // The application's own icon, 128 points square.
        Image {
            objectName: "appIcon"
            Layout.alignment: Qt.AlignHCenter
            Layout.preferredWidth: 128
            Layout.preferredHeight: 128
            Layout.maximumWidth: 128
            Layout.maximumHeight: 128
            fillMode: Image.PreserveAspectFit
            source: "qrc:/QuivraMac/Icons/quivramac.svg"
            sourceSize.width: 256
            sourceSize.height: 256
            smooth: true
            scale: step.iconScale
            opacity: step.iconOpacity
        }
        Text {
            textFormat: Text.PlainText
            Layout.topMargin: 32
            Layout.alignment: Qt.AlignHCenter
            text: "QuivraMac"
            font.pixelSize: 28
            font.weight: Font.DemiBold
            color: Theme.text
        }
        Text {
            textFormat: Text.PlainText
            Layout.topMargin: 12
            Layout.alignment: Qt.AlignHCenter
            text: Wording.welcomeTitle
            font.pixelSize: 17
            color: Theme.textSecondary
        }
        Text {
            textFormat: Text.PlainText
            Layout.topMargin: 8
            Layout.alignment: Qt.AlignHCenter
            Layout.maximumWidth: 520
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            text: Wording.welcomeBody
            font.pixelSize: 15
            lineHeight: 1.2
            color: Theme.textSecondary
        }
        OnboardingButton {
            id: continueButton
            Layout.topMargin: 48
            Layout.alignment: Qt.AlignHCenter
            title: qsTr("Continue")
            onClicked: step.continueClicked()
        }
    }
    // A spring of response 0.6 s, damping 0.7: the icon grows in while fading in.
    ParallelAnimation {
        running: true
        SpringAnimation { target: step; property: "iconScale"; to: 1; spring: 4.5; damping: 0.3; epsilon: 0.005 }
        NumberAnimation { target: step; property: "iconOpacity"; to: 1; duration: 400 }
    }
}
