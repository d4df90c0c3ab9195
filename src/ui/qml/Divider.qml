import QtQuick
import QtQuick.Layouts

Item {
    Layout.fillWidth: true
    implicitHeight: 17
    Rectangle {
        y: 8
        width: parent.width
        height: 1
        color: Theme.separator
    }
}
