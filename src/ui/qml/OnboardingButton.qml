import QtQuick
import QtQuick.Controls

// The push button of every setup screen: primary (dark on light) or secondary.
AbstractButton {
    id: button
    property string title
    property bool primary: true
    text: title
    Accessible.name: title
    implicitWidth: Math.max(120, implicitContentWidth + 48)
    implicitHeight: implicitContentHeight + 24
    contentItem: Text {
        textFormat: Text.PlainText
        text: button.title
        font.pixelSize: 15
        font.weight: Font.Medium
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        color: button.primary ? Theme.background : Theme.text
    }
    FocusRing {}
    background: Rectangle {
        radius: 8
        color: button.primary ? Theme.text : Theme.card
        opacity: button.down ? 0.8 : 1
    }
}
