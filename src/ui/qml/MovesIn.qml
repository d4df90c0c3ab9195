import QtQuick

// Content that, when it is shown, moves up into place while fading in. It takes no room while
// hidden.
Item {
    id: box
    default property alias content: holder.data
    property bool shown
    signal arrived()

    implicitWidth: holder.childrenRect.width
    implicitHeight: shown ? holder.childrenRect.height : 0
    visible: shown
    Item {
        id: holder
        width: box.width
        height: childrenRect.height
    }
    onShownChanged: if (shown) entrance.restart()
    ParallelAnimation {
        id: entrance
        NumberAnimation { target: holder; property: "opacity"; from: 0; to: 1; duration: 300; easing.type: Easing.OutCubic }
        NumberAnimation { target: holder; property: "y"; from: 8; to: 0; duration: 300; easing.type: Easing.OutCubic }
        onFinished: box.arrived()
    }
}
