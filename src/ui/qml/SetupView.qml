import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// The setup window's content until the guided flow takes its place.
Rectangle {
    implicitWidth: 600
    implicitHeight: 500
    color: Theme.background
    ColumnLayout {
        anchors.centerIn: parent
        spacing: 16
        SymbolImage {
            Layout.alignment: Qt.AlignHCenter
            name: "terminal.fill"
            size: 96
            color: Theme.accentColor
        }
        Text {
            Layout.alignment: Qt.AlignHCenter
            text: "Welcome to QuivraMac"
            font.pixelSize: 28
            font.weight: Font.Bold
            color: Theme.text
        }
        Text {
            Layout.alignment: Qt.AlignHCenter
            text: "Pair your iPhone from the menu bar to reach this computer from Quivra."
            font.pixelSize: 15
            color: Theme.textSecondary
        }
        Button {
            Layout.alignment: Qt.AlignHCenter
            text: "Get Started"
            onClicked: {
                app.hasCompletedOnboarding = true
                Window.window.close()
            }
        }
    }
}
