import QtQuick
import QtQuick.Templates as T
import Tavrik

T.ItemDelegate {
    id: row

    required property int index
    required property string title
    required property string remark
    required property bool isOriginal
    readonly property bool isCurrent: ListView.isCurrentItem
    property bool isFocused: false

    objectName: "backup-" + index
    height: 44
    focusPolicy: Qt.NoFocus
    hoverEnabled: true
    Accessible.role: Accessible.ListItem
    Accessible.name: qsTr("%1, %2").arg(title).arg(remark)
    Accessible.selected: isCurrent

    background: Rectangle {
        radius: 6
        color: row.isCurrent ? Style.selection : row.hovered ? Style.hover : "transparent"
        border.width: row.isFocused ? 1 : 0
        border.color: Style.accent
    }
    contentItem: Item {
        Glyph {
            id: sign

            anchors.left: parent.left
            anchors.leftMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            name: row.isOriginal ? "lock" : "clock"
            color: row.isCurrent ? Style.accent : Style.secondary
        }
        Column {
            anchors.left: sign.right
            anchors.leftMargin: 8
            anchors.right: parent.right
            anchors.rightMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            spacing: 1

            Label {
                width: parent.width
                text: row.title
                font.weight: row.isOriginal ? Font.Medium : Font.Normal
                Accessible.ignored: true
            }
            Label {
                width: parent.width
                text: row.remark
                font.pixelSize: Style.smallText
                color: Style.secondary
                Accessible.ignored: true
            }
        }
    }
}
