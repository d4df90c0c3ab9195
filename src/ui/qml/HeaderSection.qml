import QtQuick
import QtQuick.Layouts

// Status line with the server switch, and why the server is not running when something keeps it.
RowLayout {
    id: header
    property bool isRunning
    property int port
    property string failureReason
    signal toggle()

    spacing: 8
    Rectangle {
        objectName: "statusDot"
        Accessible.role: Accessible.Graphic
        Accessible.name: header.isRunning ? qsTr("Server running on port %1").arg(header.port) : qsTr("Server off")
        width: 8
        height: 8
        radius: 4
        color: header.isRunning ? Theme.green : Theme.gray
    }
    ColumnLayout {
        Layout.fillWidth: true
        spacing: 1
        Text {
            textFormat: Text.PlainText
            // Fills the row so the switch stays at its end, with or without a reason below.
            Layout.fillWidth: true
            text: "QuivraMac"
            font.pixelSize: 13
            font.weight: Font.Medium
            color: Theme.text
        }
        Text {
            textFormat: Text.PlainText
            objectName: "serverStatus"
            text: header.isRunning ? qsTr("Port %1").arg(header.port) : qsTr("Server off")
            font.pixelSize: 11
            color: Theme.textSecondary
        }
        // Wrapped to the panel's width rather than widening it. The alignment is set because an
        // empty text would otherwise ask the input method for its direction, which crashes Qt's
        // Wayland client on a seat without a keyboard.
        Text {
            textFormat: Text.PlainText
            objectName: "serverReason"
            Layout.fillWidth: true
            Layout.preferredWidth: 0
            visible: text !== ""
            text: header.failureReason
            horizontalAlignment: Text.AlignLeft
            wrapMode: Text.Wrap
            font.pixelSize: 10
            color: Theme.textSecondary
        }
    }
    ThemedSwitch {
        objectName: "serverSwitch"
        Accessible.name: qsTr("Server")
        checked: header.isRunning
        // The switch never keeps its own position: it shows isRunning once that changes.
        onToggled: {
            header.toggle()
            checked = Qt.binding(() => header.isRunning)
        }
    }
}
