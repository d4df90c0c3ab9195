pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QuivraMac.Ui

// The phones that can log in: name, key fingerprint, when it paired, and "Revoke..." behind a
// confirmation that names the phone.
ColumnLayout {
    id: tab
    objectName: "devicesTab"
    spacing: 12
    // The fingerprint whose revoke waits for confirmation, and what the last revoke said.
    property string confirming: ""
    property string outcome: ""
    // What the last revoke did stays only until the list changes again (that phone paired anew,
    // say); revoke() itself changes the list before it reports.
    readonly property int deviceCount: Ui.devices.count
    onDeviceCountChanged: outcome = ""

    Text {
        textFormat: Text.PlainText
        Layout.leftMargin: 16
        Layout.topMargin: 16
        text: qsTr("Paired Devices")
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        font.pixelSize: 15
        font.weight: Font.DemiBold
        color: Theme.text
    }
    Text {
        textFormat: Text.PlainText
        objectName: "revokeOutcome"
        Layout.fillWidth: true
        Layout.leftMargin: 16
        Layout.rightMargin: 16
        visible: tab.outcome !== ""
        text: tab.outcome
        wrapMode: Text.Wrap
        font.pixelSize: 12
        color: Theme.textSecondary
    }
    Rectangle {
        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.leftMargin: 16
        Layout.rightMargin: 16
        Layout.bottomMargin: 16
        radius: 8
        color: Theme.card
        clip: true
        // Nothing paired yet: the way to pair one, right here.
        ColumnLayout {
            objectName: "noDevices"
            anchors.centerIn: parent
            width: Math.min(parent.width - 40, 280)
            visible: Ui.devices.count === 0
            spacing: 12
            Text {
                textFormat: Text.PlainText
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                text: qsTr("No phone can log in with a paired key yet.")
                font.pixelSize: 13
                color: Theme.textSecondary
            }
            PairingSection { Layout.fillWidth: true }
        }
        ListView {
            id: list
            objectName: "deviceList"
            anchors.fill: parent
            model: Ui.devices
            boundsBehavior: Flickable.StopAtBounds
            ScrollBar.vertical: ScrollBar { policy: size < 1 ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff }
            delegate: DeviceRow {
                id: device
                width: list.width
                confirming: tab.confirming === device.fingerprint
                onAskRevoke: { tab.confirming = device.fingerprint; tab.outcome = "" }
                onCancel: tab.confirming = ""
                onConfirm: {
                    tab.confirming = ""
                    tab.outcome = Ui.devices.revoke(device.fingerprint)
                }
            }
        }
    }
}
