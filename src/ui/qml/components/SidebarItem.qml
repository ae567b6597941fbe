import QtQuick
import QtQuick.Templates as T
import Tavrik

T.Button {
    id: item

    property string glyph
    property string count
    property bool isCurrent: false
    property color glyphColor: isCurrent ? Style.accent : Style.secondary

    implicitHeight: 30
    leftPadding: 10
    rightPadding: 10
    opacity: enabled ? 1 : 0.45
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    Accessible.name: count ? qsTr("%1, %2").arg(text).arg(count) : text
    Accessible.role: Accessible.PageTab
    Accessible.checked: isCurrent

    contentItem: Item {
        Glyph {
            id: sign

            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            name: item.glyph
            color: item.glyphColor
        }
        Label {
            anchors.left: sign.right
            anchors.leftMargin: 8
            anchors.right: number.left
            anchors.verticalCenter: parent.verticalCenter
            text: item.text
            font.weight: item.isCurrent ? Font.Medium : Font.Normal
            Accessible.ignored: true
        }
        Label {
            id: number

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: item.count
            color: item.isCurrent ? Style.secondary : Style.faint
            font.pixelSize: Style.smallText
            Accessible.ignored: true
        }
    }
    background: Rectangle {
        radius: 6
        color: item.isCurrent ? Style.selection : item.hovered ? Style.hover : "transparent"
        border.width: item.visualFocus ? 2 : 0
        border.color: Style.accent
    }
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
}
