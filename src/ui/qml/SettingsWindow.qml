import QtQuick
import QtQuick.Window
import QuivraMac.Ui

Window {
    id: window
    title: Wording.settingsWindowTitle
    width: 500
    height: 400
    minimumWidth: 500
    maximumWidth: 500
    minimumHeight: 400
    maximumHeight: 400
    color: Theme.background
    // A window opened anew starts on the tab it was asked for, General unless said otherwise.
    onVisibleChanged: if (visible) view.takeRequest()
    Connections {
        target: Ui
        function onSettingsTabRequested() {
            if (window.visible)
                view.takeRequest()
        }
    }
    SettingsView {
        id: view
        objectName: "settingsView"
        anchors.fill: parent
    }
}
