import QtQuick
import Tavrik

// The divider between now and after: dragged, or moved by the arrow keys.
Item {
    id: handle

    property real share: 0.5 ///< of the width that shows what is now
    property real room: width
    signal moved(real share)

    objectName: "previewDivider"
    width: 36
    activeFocusOnTab: true
    Accessible.role: Accessible.Slider
    Accessible.name: qsTr("Divider between now and after")
    Keys.onLeftPressed: moved(share - 0.05)
    Keys.onRightPressed: moved(share + 0.05)

    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        width: 2
        height: parent.height
        color: "#ffffff"
    }
    Rectangle {
        anchors.centerIn: parent
        width: 34
        height: 34
        radius: 17
        color: "#ffffff"
        border.color: handle.activeFocus ? Style.accent : "#33000000"
        border.width: handle.activeFocus ? 3 : 1

        Row {
            anchors.centerIn: parent
            spacing: -2
            LayoutMirroring.enabled: false

            Glyph { name: "left"; size: 14; color: "#44444a" }
            Glyph { name: "right"; size: 14; color: "#44444a" }
        }
    }
    HoverHandler { cursorShape: Qt.SizeHorCursor }
    MouseArea {
        anchors.fill: parent
        preventStealing: true
        onPositionChanged: mouse => handle.moved((handle.x + mouse.x) / handle.room)
        onPressed: handle.forceActiveFocus()
    }
}
