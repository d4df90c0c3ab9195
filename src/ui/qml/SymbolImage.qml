import QtQuick

// A shipped symbol by its name, tinted, `size` points square. The image is drawn from a source
// twice that size for sharpness; an Image's own implicit size would be the source's, so the
// symbol is an item of its own size that holds the image.
Item {
    property string name
    property color color: "black"
    property real size: 16
    implicitWidth: size
    implicitHeight: size
    visible: name !== ""
    Image {
        anchors.fill: parent
        source: parent.name === "" ? "" : "image://symbol/" + parent.name + "?color=" + parent.color
        sourceSize.width: parent.size * 2
        sourceSize.height: parent.size * 2
        smooth: true
    }
}
