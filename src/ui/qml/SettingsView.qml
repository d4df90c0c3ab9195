pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QuivraMac.Ui

// Three tabs, General, Logs and Devices; the window decides which one it opens on.
ThemedSurface {
    id: view
    property alias selectedTab: tabs.currentIndex
    implicitWidth: 500
    implicitHeight: 400
    // What the last request asked for: a tab, and maybe the install steps over General.
    function takeRequest() {
        selectedTab = Ui.takeSettingsTab()
        if (Ui.takeInstallSteps())
            general.installLink.showSteps()
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0
        TabBar {
            id: tabs
            Layout.alignment: Qt.AlignHCenter
            Layout.topMargin: 8
            background: null
            Repeater {
                model: [{ title: qsTr("General"), symbol: "gear" }, { title: qsTr("Logs"), symbol: "doc.text" },
                        { title: qsTr("Devices"), symbol: "iphone.gen3" }]
                delegate: TabButton {
                    id: tab
                    required property var modelData
                    required property int index
                    text: modelData.title
                    Accessible.name: modelData.title
                    width: 96
                    contentItem: Column {
                        spacing: 2
                        SymbolImage {
                            anchors.horizontalCenter: parent.horizontalCenter
                            name: tab.modelData.symbol
                            size: 18
                            color: tabs.currentIndex === tab.index ? Theme.accentColor : Theme.textSecondary
                        }
                        Text {
                            textFormat: Text.PlainText
                            anchors.horizontalCenter: parent.horizontalCenter
                            text: tab.modelData.title
                            font.pixelSize: 11
                            color: tabs.currentIndex === tab.index ? Theme.accentColor : Theme.textSecondary
                        }
                    }
                    FocusRing { anchors.margins: 0 }
                    background: Rectangle {
                        radius: 6
                        color: tabs.currentIndex === tab.index ? Theme.withAlpha(Theme.text, 0.08) : "transparent"
                    }
                }
            }
        }
        StackLayout {
            currentIndex: tabs.currentIndex
            Layout.fillWidth: true
            Layout.fillHeight: true
            GeneralTab { id: general }
            LogsTab {}
            DevicesTab {}
        }
    }
}
