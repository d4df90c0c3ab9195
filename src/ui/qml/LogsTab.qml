import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QuivraMac.Ui

// The server log, with Clear and Copy; new lines scroll into view.
ColumnLayout {
    id: tab
    spacing: 12

    RowLayout {
        Layout.fillWidth: true
        Layout.leftMargin: 16
        Layout.rightMargin: 16
        Layout.topMargin: 16
        Text {
            textFormat: Text.PlainText
            text: qsTr("Server Logs")
            font.pixelSize: 15
            font.weight: Font.DemiBold
            color: Theme.text
        }
        Item { Layout.fillWidth: true }
        AbstractButton {
            objectName: "clearButton"
            text: qsTr("Clear")
            Accessible.name: text
            contentItem: Text { textFormat: Text.PlainText; text: qsTr("Clear"); font.pixelSize: 13; color: Theme.textSecondary }
            onClicked: Ui.clearLogs()
            FocusRing {}
        }
        AbstractButton {
            objectName: "copyButton"
            text: qsTr("Copy")
            Accessible.name: text
            Layout.leftMargin: 12
            contentItem: Text { textFormat: Text.PlainText; text: qsTr("Copy"); font.pixelSize: 13; color: Theme.accentColor }
            onClicked: Ui.copyText(ServerManager.logs)
            FocusRing {}
        }
    }
    Rectangle {
        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.leftMargin: 16
        Layout.rightMargin: 16
        Layout.bottomMargin: 16
        radius: 6
        color: Theme.textBackground
        border.width: 1
        border.color: Theme.separator
        clip: true
        Flickable {
            id: scroller
            objectName: "logsScroller"
            anchors.fill: parent
            contentWidth: width
            contentHeight: logsEnd.implicitHeight
            ScrollBar.vertical: ScrollBar { policy: size < 1 ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff }
            TextEdit {
                id: logsEnd
                objectName: "logsEnd"
                width: scroller.width
                padding: 12
                readOnly: true
                selectByMouse: true
                wrapMode: TextEdit.Wrap
                font.family: Theme.monospace
                font.pixelSize: 11
                text: ServerManager.logs === "" ? qsTr("No logs yet...") : ServerManager.logs
                color: ServerManager.logs === "" ? Theme.textSecondary : Theme.text
            }
            Connections {
                target: ServerManager
                function onLogsChanged() { scrollToEnd.restart() }
            }
            NumberAnimation {
                id: scrollToEnd
                target: scroller
                property: "contentY"
                to: Math.max(0, scroller.contentHeight - scroller.height)
                duration: 200
            }
        }
    }
}
