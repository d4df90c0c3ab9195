import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QuivraMac.Ui

// A command to run in a terminal: selectable as text, and copied whole with one button.
RowLayout {
    id: field
    property string command
    property alias copyButton: copy
    spacing: 8
    Rectangle {
        Layout.fillWidth: true
        implicitHeight: commandText.implicitHeight + 16
        radius: 6
        color: Theme.textBackground
        border.width: 1
        border.color: Theme.separator
        TextEdit {
            id: commandText
            objectName: "commandText"
            x: 8
            y: 8
            width: parent.width - 16
            wrapMode: TextEdit.Wrap
            textFormat: TextEdit.PlainText
            // Set, not implicit: see PairingSection's guessing line.
            horizontalAlignment: TextEdit.AlignLeft
            readOnly: true
            selectByMouse: true
            selectByKeyboard: true
            activeFocusOnPress: true
            text: field.command
            font.family: Theme.monospace
            font.pixelSize: 12
            color: Theme.text
            selectionColor: Theme.accentFill
            selectedTextColor: "#ffffff"
            Accessible.role: Accessible.EditableText
            Accessible.name: text
        }
    }
    Button {
        id: copy
        objectName: "copyCommand"
        Layout.alignment: Qt.AlignTop
        text: qsTr("Copy")
        onClicked: Ui.copyText(field.command)
    }
}
