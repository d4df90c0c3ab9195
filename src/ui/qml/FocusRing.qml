import QtQuick
import QuivraMac.Ui

// Where the keyboard is: a ring around its control while focus came by the keyboard (Tab), in
// the accent colour that stands at 3:1 on both schemes.
Rectangle {
    // A control (its visualFocus says how the focus came); the parent unless said otherwise.
    property var control: parent
    anchors.fill: parent
    anchors.margins: -3
    z: 10
    radius: 6
    color: "transparent"
    border.width: 2
    border.color: Theme.accentColor
    visible: control !== null && control.visualFocus === true
}
