import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QuivraMac.Ui

// One paired phone in the Devices tab; while `confirming`, the question that names it.
Item {
    id: row
    required property string name
    required property string fingerprint
    required property string shortFingerprint
    required property string paired
    required property int index
    property bool confirming: false
    signal askRevoke()
    signal cancel()
    signal confirm()

    // The confirmation takes the keyboard, on its safe choice; Escape is Cancel.
    onConfirmingChanged: {
        if (Ui.canMoveFocus)
            confirming ? cancelButton.forceActiveFocus() : revokeButton.forceActiveFocus()
    }
    Shortcut {
        sequence: "Escape"
        enabled: row.confirming
        onActivated: row.cancel()
    }

    implicitHeight: content.implicitHeight + 24

    Rectangle {
        visible: row.index > 0
        width: parent.width - 24
        x: 12
        height: 1
        color: Theme.separator
    }
    ColumnLayout {
        id: content
        x: 12
        y: 12
        width: parent.width - 24
        spacing: 4
        RowLayout {
            Layout.fillWidth: true
            Text {
                textFormat: Text.PlainText
                objectName: "deviceName"
                // A long name may be shortened; the confirmation shows it whole.
                property bool mayElide: true
                Layout.fillWidth: true
                text: row.name
                elide: Text.ElideRight
                font.pixelSize: 13
                font.weight: Font.Medium
                color: Theme.text
            }
            LinkButton {
                id: revokeButton
                objectName: "revokeButton"
                visible: !row.confirming
                text: qsTr("Revoke...")
                color: Theme.red
                onClicked: row.askRevoke()
            }
        }
        RowLayout {
            spacing: 8
            AbstractButton {
                id: fingerprintLabel
                text: row.shortFingerprint
                Accessible.name: row.fingerprint
                hoverEnabled: true
                ToolTip.visible: hovered
                ToolTip.text: row.fingerprint
                ToolTip.delay: 500
                FocusRing {}
                contentItem: Text {
                    textFormat: Text.PlainText
                    text: fingerprintLabel.text
                    font.family: Theme.monospace
                    font.pixelSize: 11
                    color: Theme.textSecondary
                }
            }
            LinkButton { text: qsTr("Copy"); onClicked: Ui.copyText(row.fingerprint) }
            Text { textFormat: Text.PlainText; text: qsTr("Paired %1").arg(row.paired); font.pixelSize: 11; color: Theme.textSecondary }
        }
        ColumnLayout {
            visible: row.confirming
            Layout.fillWidth: true
            Layout.topMargin: 6
            spacing: 8
            Text {
                textFormat: Text.PlainText
                Layout.fillWidth: true
                text: qsTr("Revoke \u201c%1\u201d? It will no longer be able to log in to this computer.").arg(row.name)
                wrapMode: Text.Wrap
                font.pixelSize: 12
                color: Theme.text
            }
            RowLayout {
                spacing: 8
                Button { id: cancelButton; objectName: "cancelRevoke"; text: qsTr("Cancel"); onClicked: row.cancel() }
                Button {
                    objectName: "confirmRevoke"
                    text: qsTr("Revoke")
                    palette.button: Theme.redFill
                    palette.buttonText: "#ffffff"
                    onClicked: row.confirm()
                }
            }
        }
    }
}
