import QtQuick
import QuivraMac.Ui

// Opens the steps to install Eternal Terminal, wherever a missing etserver is reported.
LinkButton {
    objectName: "installEtLink"
    text: "How to install Eternal Terminal..."
    pixelSize: 13
    onClicked: Ui.openWindow("installEt")
}
