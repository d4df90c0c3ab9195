import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QuivraMac.Ui

// Four checks one after another; at the first failure a card explains it and offers help.
Item {
    id: step
    // The screen coming in answers keys from the start of its slide, the one leaving no more:
    // two screens answering the same key would make Qt fire neither.
    readonly property bool arrived: StackView.status === StackView.Active
                                    || StackView.status === StackView.Activating
    property Item defaultButton: bottomButton
    signal allPassedContinue()
    signal backClicked()

    // A status mark that scales and fades in and out as the row's state changes.
    component Mark: Item {
        property bool shown
        anchors.fill: parent
        opacity: shown ? 1 : 0
        scale: shown ? 1 : 0.5
        visible: opacity > 0
        Behavior on opacity { NumberAnimation { duration: 250; easing.type: Easing.OutCubic } }
        Behavior on scale { NumberAnimation { duration: 250; easing.type: Easing.OutBack } }
    }
    component CheckRow: Row {
        id: row
        property var item
        spacing: 12
        // Read as one line: the check and how it went.
        Accessible.role: Accessible.ListItem
        Accessible.name: item.name + ": " + [qsTr("waiting"), qsTr("checking"), item.successMessage,
                                              qsTr("failed")][item.state]
        Item {
            width: 24
            height: 24
            Mark {
                shown: row.item.state === SystemCheck.Pending
                Rectangle {
                    anchors.fill: parent
                    anchors.margins: 2
                    radius: width / 2
                    color: "transparent"
                    border.width: 2
                    border.color: Theme.switchOff // 3:1, as a control must be
                }
            }
            Mark {
                shown: row.item.state === SystemCheck.Checking
                BusyIndicator {
                    anchors.centerIn: parent
                    width: 20
                    height: 20
                    padding: 0
                    running: parent.shown
                }
            }
            Mark {
                shown: row.item.state === SystemCheck.Passed
                SymbolImage { anchors.fill: parent; name: "checkmark.circle.fill"; size: 24; color: Theme.green }
            }
            Mark {
                shown: row.item.state === SystemCheck.Failed
                SymbolImage { anchors.fill: parent; name: "xmark.circle.fill"; size: 24; color: Theme.red }
            }
        }
        Column {
            Text { textFormat: Text.PlainText; text: row.item.name; font.pixelSize: 15; font.weight: Font.Medium; color: Theme.text }
            MovesIn {
                shown: row.item.state === SystemCheck.Passed
                Text { textFormat: Text.PlainText; text: row.item.successMessage; font.pixelSize: 13; color: Theme.textSecondary }
            }
        }
    }
    component FailedCheckCard: Rectangle {
        id: card
        signal retry()
        property alias retryButton: retryButton
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
                    textFormat: Text.PlainText
                    objectName: "failureMessage"
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                    // A distribution's install command makes this a sentence or two.
                    width: cardContent.width - 28
                    wrapMode: Text.Wrap
                    text: SystemCheck.failedMessage
                    font.pixelSize: 14
                    font.weight: Font.Medium
                    color: Theme.text
                }
            }
            CommandField {
                objectName: "failureCommand"
                width: parent.width
                visible: SystemCheck.failedCommand !== ""
                command: SystemCheck.failedCommand
            }
            InstallLink { visible: Ui.etserverMissing }
            Row {
                spacing: 20
                AbstractButton {
                    id: fixButton
                    objectName: "fixButton"
                    visible: SystemCheck.failedCanFix
                    text: qsTr("Fix")
                    Accessible.name: text
                    onClicked: SystemCheck.fix()
                    FocusRing {}
                    implicitWidth: implicitContentWidth + 32
                    implicitHeight: implicitContentHeight + 14
                    background: Rectangle {
                        radius: 8
                        color: Theme.accentFill
                        opacity: fixButton.down ? 0.8 : 1
                    }
                    contentItem: Text {
                        textFormat: Text.PlainText
                        text: fixButton.text
                        font.pixelSize: 14
                        font.weight: Font.Medium
                        color: "#ffffff"
                        horizontalAlignment: Text.AlignHCenter
                        verticalAlignment: Text.AlignVCenter
                    }
                }
                AbstractButton {
                    id: retryButton
                    anchors.verticalCenter: parent.verticalCenter
                    text: qsTr("Try Again")
                    Accessible.name: text
                    onClicked: card.retry()
                    FocusRing {}
                    contentItem: Row {
                        spacing: 6
                        SymbolImage { anchors.verticalCenter: parent.verticalCenter; name: "arrow.clockwise"; size: 14; color: Theme.accentColor }
                        Text { textFormat: Text.PlainText; text: qsTr("Try Again"); font.pixelSize: 14; font.weight: Font.Medium; color: Theme.accentColor }
                    }
                }
            }
            AskClaudeCard { width: parent.width; prompt: SystemCheck.failedPrompt }
        }
    }

    Component.onCompleted: SystemCheck.appear()
    Shortcut {
        sequence: "Escape"
        enabled: step.arrived
        onActivated: step.backClicked()
    }
    Shortcut {
        sequences: ["Return", "Enter"]
        enabled: step.arrived && SystemCheck.allPassed
        onActivated: step.allPassedContinue()
    }

    // Everything above the bottom button. A failure card that does not fit scrolls; the title and
    // the failing row stay in view above it, as they say what the card is about.
    Flickable {
        id: scroller
        objectName: "checkScroller"
        anchors.fill: parent
        anchors.bottomMargin: 80
        contentHeight: column.implicitHeight + 48
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar { policy: size < 1 ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff }
        NumberAnimation {
            id: backToTop
            target: scroller
            property: "contentY"
            to: 0
            duration: 300
            easing.type: Easing.InOutQuad
        }
        ColumnLayout {
            id: column
            width: parent.width
            y: 32
            spacing: 16
            Text {
                textFormat: Text.PlainText
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
            MovesIn {
                Layout.alignment: Qt.AlignHCenter
                Layout.preferredWidth: Math.min(500, step.width - 48)
                shown: SystemCheck.failedIndex >= 0
                onArrived: backToTop.restart()
                FailedCheckCard { width: parent.width; onRetry: SystemCheck.start() }
            }
        }
    }
    OnboardingButton {
        id: bottomButton
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 24
        title: SystemCheck.allPassed ? qsTr("Continue") : qsTr("Back")
        primary: SystemCheck.allPassed
        onClicked: SystemCheck.allPassed ? step.allPassedContinue() : step.backClicked()
    }
}
