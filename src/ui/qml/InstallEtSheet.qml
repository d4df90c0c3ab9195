import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QuivraMac.Ui

ThemedSurface {
    id: sheet
    objectName: "installEtSheet"
    signal done()
    property alias doneButton: doneButton
    readonly property string command: Wording.etserverInstallCommand
    readonly property string downloadPage: "https://eternalterminal.dev/download/"
    implicitWidth: 460
    implicitHeight: column.implicitHeight + 48

    ColumnLayout {
        id: column
        x: 24
        y: 24
        width: sheet.width - 48
        spacing: 14

        Text {
            textFormat: Text.PlainText
            text: qsTr("Install Eternal Terminal")
            font.pixelSize: 17
            font.weight: Font.DemiBold
            color: Theme.text
        }
        Text {
            textFormat: Text.PlainText
            Layout.fillWidth: true
            wrapMode: Text.Wrap
            text: qsTr("This copy of QuivraMac was built without its own Eternal Terminal server, "
                + "which keeps your iPhone's sessions alive. Install Eternal Terminal once: "
                + "QuivraMac finds its etserver on your PATH.")
            font.pixelSize: 13
            color: Theme.textSecondary
        }
        Text {
            textFormat: Text.PlainText
            Layout.fillWidth: true
            wrapMode: Text.Wrap
            text: sheet.command
                ? qsTr("1. Run this in a terminal:")
                : qsTr("1. Build and install it from source, as the download page describes.")
            font.pixelSize: 13
            color: Theme.text
        }
        CommandField {
            id: installCommand
            objectName: "installCommand"
            visible: sheet.command !== ""
            Layout.fillWidth: true
            command: sheet.command
        }
        Text {
            textFormat: Text.PlainText
            Layout.fillWidth: true
            wrapMode: Text.Wrap
            text: qsTr("2. Turn on the server with the switch in the QuivraMac panel.")
            font.pixelSize: 13
            color: Theme.text
        }
        RowLayout {
            Layout.topMargin: 6
            Layout.fillWidth: true
            Button {
                id: openDownloadPage
                objectName: "openDownloadPage"
                text: qsTr("Open Download Page")
                onClicked: Qt.openUrlExternally(sheet.downloadPage)
            }
            Item { Layout.fillWidth: true }
            Button {
                id: doneButton
                objectName: "installDone"
                text: qsTr("Done")
                highlighted: true
                onClicked: sheet.done()
                // Tab goes round the sheet's own controls while it is open.
                KeyNavigation.tab: sheet.command !== "" ? installCommand.copyButton : openDownloadPage
            }
        }
    }
}
