import QtQuick
import QtQuick.Window
import QuivraMac.Ui

Window {
    title: "Settings"
    width: 500
    height: 400
    minimumWidth: 500
    maximumWidth: 500
    minimumHeight: 400
    maximumHeight: 400
    color: Theme.background
    // A window opened anew starts on the tab it was asked for, General unless said otherwise.
    onVisibleChanged: if (visible) view.selectedTab = Ui.settingsTab
    Connections {
        target: Ui
        function onSettingsTabRequested() { view.selectedTab = Ui.settingsTab }
    }
    SettingsView {
        id: view
        objectName: "settingsView"
        anchors.fill: parent
    }
}
