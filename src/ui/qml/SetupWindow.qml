import QtQuick
import QtQuick.Window

Window {
    title: "Setup"
    flags: Qt.Window | Qt.WindowTitleHint | Qt.WindowCloseButtonHint
    width: content.implicitWidth
    height: content.implicitHeight
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    color: Theme.background
    SetupView {
        id: content
        anchors.fill: parent
    }
}
