import QtQuick
import QtQuick.Controls
import QuivraMac.Ui

// Opens the steps to install Eternal Terminal as a sheet over the window it sits in, wherever a
// missing etserver is reported.
LinkButton {
    id: link
    objectName: "installEtLink"
    text: qsTr("How to install Eternal Terminal...")
    pixelSize: 13
    onClicked: showSteps()
    function showSteps() { sheet.open() }

    Popup {
        id: sheet
        objectName: "installEtPopup"
        parent: Overlay.overlay
        modal: true
        dim: true
        focus: true
        closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutside
        onOpened: if (Ui.canMoveFocus) steps.doneButton.forceActiveFocus()
        onClosed: if (Ui.canMoveFocus) link.forceActiveFocus()
        anchors.centerIn: parent
        width: Math.min(460, parent ? parent.width - 24 : 460)
        height: Math.min(steps.implicitHeight, parent ? parent.height - 24 : steps.implicitHeight)
        padding: 0
        background: Rectangle {
            radius: 12
            color: Theme.background
            border.width: 1
            border.color: Theme.separator
        }
        Overlay.modal: Rectangle { color: Theme.withAlpha("#000000", Theme.dark ? 0.5 : 0.3) }
        Flickable {
            id: flick
            anchors.fill: parent
            clip: true
            contentHeight: steps.implicitHeight
            boundsBehavior: Flickable.StopAtBounds
            ScrollBar.vertical: ScrollBar { policy: flick.contentHeight > flick.height ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff }
            InstallEtSheet {
                id: steps
                width: sheet.width
                color: "transparent"
                onDone: sheet.close()
            }
        }
    }
}
