import QtQuick
import QtQuick.Controls
import QuivraMac.Ui

// Opens the steps to install Eternal Terminal, wherever a missing etserver is reported.
AbstractButton {
    id: link
    objectName: "installEtLink"
    text: "How to install Eternal Terminal\u2026"
    Accessible.name: text
    hoverEnabled: true
    onClicked: Ui.openWindow("installEt")
    contentItem: Text {
        text: link.text
        font.pixelSize: 13
        font.underline: link.hovered
        color: Theme.accentColor
    }
}
