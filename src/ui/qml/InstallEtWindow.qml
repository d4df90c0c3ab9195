import QtQuick
import QtQuick.Window
import QuivraMac.Ui

// A short sheet: how to get Eternal Terminal's etserver onto this system.
Window {
    id: window
    title: "Install Eternal Terminal"
    width: 460
    height: sheet.implicitHeight
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    color: Theme.background

    InstallEtSheet {
        id: sheet
        anchors.fill: parent
        onDone: window.close()
    }
}
