import QtQuick

// A shipped symbol by its name, tinted.
Image {
    property string name
    property color color: "black"
    property real size: 16
    width: size
    height: size
    visible: name !== ""
    source: name === "" ? "" : "image://symbol/" + name + "?color=" + color
    sourceSize: Qt.size(size * 2, size * 2)
    smooth: true
}
