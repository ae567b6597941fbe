import QtQuick
import QtQuick.Templates as T
import Tavrik

T.Button {
    id: tab

    property string glyph
    property bool isCurrent: false

    implicitWidth: Math.max(76, name.implicitWidth + 20)
    implicitHeight: 52
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    Accessible.role: Accessible.PageTab
    Accessible.name: text
    Accessible.checked: isCurrent
    Keys.onReturnPressed: clicked()
    Keys.onRightPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
    Keys.onLeftPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

    contentItem: Item {
        Glyph {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 7
            name: tab.glyph
            size: 20
            color: tab.isCurrent ? Style.accent : Style.secondary
        }
        Label {
            id: name

            anchors.horizontalCenter: parent.horizontalCenter
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 5
            text: tab.text
            font.pixelSize: Style.smallText
            font.weight: tab.isCurrent ? Font.Medium : Font.Normal
            color: tab.isCurrent ? Style.accent : Style.secondary
            Accessible.ignored: true
        }
    }
    background: Rectangle {
        radius: Style.corner
        color: tab.isCurrent ? Style.selection : tab.down ? Style.pressed : tab.hovered ? Style.hover : "transparent"
        border.width: tab.visualFocus ? 2 : 0
        border.color: Style.accent
    }
}
