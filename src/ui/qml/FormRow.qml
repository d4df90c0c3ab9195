import QtQuick
import QtQuick.Layouts

// A labelled row of a settings section: the label left, the value right.
RowLayout {
    id: row
    property string label
    default property alias value: valueSlot.data
    Layout.fillWidth: true
    Text {
        textFormat: Text.PlainText
        text: row.label
        font.pixelSize: 13
        color: Theme.text
    }
    Item { Layout.fillWidth: true }
    Row {
        id: valueSlot
        spacing: 6
    }
}
