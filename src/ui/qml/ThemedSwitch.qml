import QtQuick
import QtQuick.Controls
import QuivraMac.Ui

// An on/off switch in the app's colours: its track stands out from the background off as well as
// on, and its knob stays inside the track.
Switch {
    id: control
    padding: 0
    indicator: Rectangle {
        implicitWidth: 36
        implicitHeight: 20
        x: control.leftPadding + (control.availableWidth - width) / 2
        y: control.topPadding + (control.availableHeight - height) / 2
        radius: height / 2
        color: control.checked ? Theme.accentFill : Theme.switchOff
        FocusRing { control: control; radius: height / 2 }
        Rectangle {
            x: control.checked ? parent.width - width - 2 : 2
            y: 2
            width: parent.height - 4
            height: width
            radius: width / 2
            color: Theme.knob
            Behavior on x { NumberAnimation { duration: 120; easing.type: Easing.OutCubic } }
        }
    }
}
