import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// One clickable row of the panel, highlighted while the pointer is over it.
AbstractButton {
    id: row
    property string title
    // A symbol name; "icon" is taken by the button type itself.
    property string symbol
    readonly property bool isHovered: hovered

    text: title
    Accessible.name: title
    hoverEnabled: true
    Layout.fillWidth: true
    Layout.leftMargin: -8
    Layout.rightMargin: -8
    leftPadding: 8
    rightPadding: 8
    topPadding: 6
    bottomPadding: 6

    FocusRing { anchors.margins: 0; radius: 4 }
    background: Rectangle {
        radius: 4
        color: row.isHovered ? Theme.withAlpha(Theme.text, 0.1) : "transparent"
    }
    contentItem: RowLayout {
        spacing: 0
        // The symbol's column is kept in rows without one, so that every title starts at the same
        // place, under the header's name.
        Item {
            Layout.preferredWidth: 16
            implicitHeight: 13
            SymbolImage {
                visible: row.symbol !== ""
                anchors.verticalCenter: parent.verticalCenter
                name: row.symbol
                size: 13
                color: Theme.textSecondary
            }
        }
        // Wrapped to the panel's width rather than widening it.
        Text {
            textFormat: Text.PlainText
            Layout.fillWidth: true
            Layout.preferredWidth: 0
            wrapMode: Text.Wrap
            text: row.title
            font.pixelSize: 13
            color: Theme.text
        }
    }
}
