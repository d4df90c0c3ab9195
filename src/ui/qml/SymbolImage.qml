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
    sourceSize.width: size * 2
    sourceSize.height: size * 2
    smooth: true
}
