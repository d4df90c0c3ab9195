import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QuivraMac.Ui

// Four checks one after another; at the first failure a card explains it and offers help.
Item {
    id: step
    signal allPassedContinue()
    signal backClicked()

    component CheckRow: Row {
        id: row
        property var item
        spacing: 12
        Item {
            width: 24
            height: 24
            Rectangle {
                anchors.fill: parent
                anchors.margins: 2
                visible: row.item.state === SystemCheck.Pending
                radius: width / 2
                color: "transparent"
                border.width: 2
                border.color: Theme.withAlpha(Theme.textSecondary, 0.3)
            }
            BusyIndicator {
                anchors.centerIn: parent
                width: 20
                height: 20
                visible: running
                running: row.item.state === SystemCheck.Checking
            }
            SymbolImage {
                anchors.fill: parent
                visible: row.item.state === SystemCheck.Passed || row.item.state === SystemCheck.Failed
                name: row.item.state === SystemCheck.Passed ? "checkmark.circle.fill" : "xmark.circle.fill"
                size: 24
                color: row.item.state === SystemCheck.Passed ? Theme.green : Theme.red
                Behavior on opacity { NumberAnimation { duration: 200 } }
            }
        }
        Column {
            Text { text: row.item.name; font.pixelSize: 15; font.weight: Font.Medium; color: Theme.text }
            Text {
                visible: row.item.state === SystemCheck.Passed
                text: row.item.successMessage
                font.pixelSize: 13
                color: Theme.textSecondary
            }
        }
    }
    component FailedCheckCard: Rectangle {
        id: card
        signal retry()
        implicitWidth: 500
        implicitHeight: cardContent.implicitHeight + 40
        radius: 16
        color: Theme.card
        Column {
            id: cardContent
            x: 20
            y: 20
            width: parent.width - 40
            spacing: 16
            Row {
                spacing: 10
                SymbolImage { name: "exclamationmark.triangle.fill"; size: 18; color: Theme.yellow }
                Text {
                    objectName: "failureMessage"
                    text: SystemCheck.failedMessage
                    font.pixelSize: 14
                    font.weight: Font.Medium
                    color: Theme.text
                }
            }
            AskClaudeCard { width: parent.width; prompt: SystemCheck.failedPrompt }
            AbstractButton {
                text: "Try Again"
                Accessible.name: text
                onClicked: card.retry()
                contentItem: Row {
                    spacing: 6
                    SymbolImage { anchors.verticalCenter: parent.verticalCenter; name: "arrow.clockwise"; size: 14; color: Theme.accentColor }
                    Text { text: "Try Again"; font.pixelSize: 14; font.weight: Font.Medium; color: Theme.accentColor }
                }
            }
        }
    }

    Component.onCompleted: SystemCheck.appear()
    Shortcut {
        sequences: ["Return", "Enter"]
        enabled: step.visible && SystemCheck.allPassed
        onActivated: step.allPassedContinue()
    }
    Shortcut {
        sequence: "Escape"
        enabled: step.visible
        onActivated: step.backClicked()
    }

    Flickable {
        anchors.fill: parent
        anchors.bottomMargin: 72
        contentHeight: column.implicitHeight + 48
        clip: true
        ColumnLayout {
            id: column
            width: parent.width
            y: 32
            spacing: 16
            Text {
                objectName: "checkTitle"
                Layout.alignment: Qt.AlignHCenter
                text: SystemCheck.title
                font.pixelSize: 24
                font.weight: Font.DemiBold
                color: Theme.text
            }
            Column {
                Layout.alignment: Qt.AlignHCenter
                Layout.preferredWidth: 360
                spacing: 14
                Repeater {
                    model: SystemCheck.checks
                    delegate: CheckRow { required property var modelData; item: modelData }
                }
            }
            FailedCheckCard {
                Layout.alignment: Qt.AlignHCenter
                visible: SystemCheck.failedIndex >= 0
                onRetry: SystemCheck.start()
            }
        }
    }
    OnboardingButton {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 24
        title: SystemCheck.allPassed ? "Continue" : "Back"
        primary: SystemCheck.allPassed
        onClicked: SystemCheck.allPassed ? step.allPassedContinue() : step.backClicked()
    }
}
