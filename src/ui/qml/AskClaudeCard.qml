import QtQuick
import QtQuick.Controls
import QuivraMac.Ui

// A ready-written help request: its first lines, and a button that copies all of it.
Rectangle {
    id: card
    property alias prompt: model.prompt
    signal copied()

    implicitWidth: 460
    implicitHeight: content.implicitHeight + 32
    radius: 12
    color: "transparent"
    border.width: 1
    border.color: Theme.withAlpha(Theme.purple, 0.2)

    PromptCard {
        id: model
        onCopiedToClipboard: card.copied()
    }
    Column {
        id: content
        x: 16
        y: 16
        width: parent.width - 32
        spacing: 12
        Row {
            spacing: 6
            SymbolImage { name: "sparkles"; size: 14; color: Theme.purple }
            Text { textFormat: Text.PlainText; text: qsTr("Ask Claude Code"); font.pixelSize: 14; font.weight: Font.DemiBold; color: Theme.text }
        }
        Text {
            textFormat: Text.PlainText
            objectName: "promptPreview"
            width: parent.width
            text: model.preview
            wrapMode: Text.Wrap
            font.family: Theme.monospace
            font.pixelSize: 13
            color: Theme.textSecondary
        }
        AbstractButton {
            objectName: "copyPromptButton"
            width: parent.width
            text: model.copied ? qsTr("Copied!") : qsTr("Copy to Clipboard")
            Accessible.name: text
            implicitHeight: 38
            onClicked: model.copy()
            FocusRing {}
            background: Rectangle {
                radius: 8
                color: Theme.withAlpha(model.copied ? Theme.green : Theme.accentColor, 0.1)
            }
            // Centred by the button's padding, worked out from its width, not from the row's.
            leftPadding: Math.max(0, (width - implicitContentWidth) / 2)
            contentItem: Row {
                spacing: 6
                SymbolImage {
                    anchors.verticalCenter: parent.verticalCenter
                    name: model.copied ? "checkmark" : "doc.on.doc"
                    size: 12
                    color: model.copied ? Theme.green : Theme.accentColor
                }
                Text {
                    textFormat: Text.PlainText
                    anchors.verticalCenter: parent.verticalCenter
                    text: model.copied ? qsTr("Copied!") : qsTr("Copy to Clipboard")
                    font.pixelSize: 13
                    font.weight: Font.Medium
                    color: model.copied ? Theme.green : Theme.accentColor
                }
            }
        }
    }
}
