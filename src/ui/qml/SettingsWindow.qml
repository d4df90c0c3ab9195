import QtQuick
import QtQuick.Window

Window {
    title: "Settings"
    width: 500
    height: 400
    minimumWidth: 500
    maximumWidth: 500
    minimumHeight: 400
    maximumHeight: 400
    color: Theme.background
    // A window opened anew starts on the General tab.
    onVisibleChanged: if (visible) view.selectedTab = 0
    SettingsView {
        id: view
        objectName: "settingsView"
        anchors.fill: parent
    }
}
