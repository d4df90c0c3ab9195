import QtQuick
import QtQuick.Controls

// A button that reads as a link: accent-coloured text, underlined under the pointer.
AbstractButton {
    id: link
    property color color: Theme.accentColor
    property int pixelSize: 12
    Accessible.name: text
    hoverEnabled: true
    FocusRing { anchors.margins: -2; radius: 3 }
    contentItem: Text {
        textFormat: Text.PlainText
        text: link.text
        font.pixelSize: link.pixelSize
        font.underline: link.hovered
        color: link.color
    }
}
