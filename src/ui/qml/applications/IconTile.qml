import QtQuick
import QtQuick.Controls.Basic as C
import Tavrik

// One icon of a strip, or the tile that adds one.
Item {
    id: tile

    required property int index
    required property int kind
    required property string path
    required property int place
    required property bool isChosen
    required property bool isPending
    required property bool beginsThemes
    property url source
    property string label
    property PictureDrop drop: null
    property bool hasFocus: false
    property bool hasChoice: true
    readonly property bool showsChoice: isChosen && hasChoice
    readonly property bool isRemovable: kind === IconStrip.Custom || kind === IconStrip.Theme
    signal tapped()
    signal removed()

    objectName: "tile" + index
    width: frame.width + 4 + (beginsThemes ? 20 : 0)
    Accessible.role: kind === IconStrip.Add ? Accessible.Button : Accessible.RadioButton
    Accessible.name: label
    Accessible.checked: isChosen
    Accessible.onPressAction: tapped()

    Separator {
        anchors.left: parent.left
        anchors.leftMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        width: 1
        height: 36
        visible: tile.beginsThemes
    }
    Rectangle {
        id: frame

        anchors.right: parent.right
        anchors.rightMargin: 4
        anchors.verticalCenter: parent.verticalCenter
        width: 52
        height: 52
        radius: 13
        color: tile.hasFocus || mouse.containsMouse ? Style.pressed : "transparent"
        border.width: tile.showsChoice || tile.hasFocus ? 2 : 0
        border.color: tile.showsChoice ? Style.accent : Style.faint

        IconImage {
            anchors.centerIn: parent
            size: 40
            source: tile.source
            visible: tile.kind !== IconStrip.Add
        }
        Rectangle {
            anchors.centerIn: parent
            width: 36
            height: 36
            radius: 9
            visible: tile.kind === IconStrip.Add && !preview.visible
            color: Style.hover

            Glyph {
                anchors.centerIn: parent
                name: "plus"
                size: 14
            }
        }
        DroppedPicture {
            id: preview

            objectName: "dropPreview"
            anchors.centerIn: parent
            width: 40
            height: 40
            visible: tile.drop !== null && tile.drop.hasPicture
            drop: tile.drop
        }
        Label {
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            width: Math.max(18, implicitWidth + 8)
            height: 18
            visible: preview.visible && tile.drop.count > 1
            text: visible ? tile.drop.count : ""
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: Style.smallText
            color: Style.textOnAccent

            Rectangle {
                z: -1
                anchors.fill: parent
                radius: 9
                color: Style.accent
            }
        }
        Rectangle {
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            anchors.margins: 5
            width: 10
            height: 10
            radius: 5
            visible: tile.isPending
            color: Style.accent
            border.width: 2
            border.color: Style.content
        }
    }
    MouseArea {
        id: mouse

        anchors.fill: frame
        hoverEnabled: true
        onClicked: tile.tapped()

        Rectangle {
            objectName: "removeTile" + tile.index
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.margins: -1
            width: 18
            height: 18
            radius: 9
            visible: tile.isRemovable && mouse.containsMouse
            color: remove.containsMouse ? Style.text : Style.secondary
            Accessible.role: Accessible.Button
            Accessible.name: tile.kind === IconStrip.Theme ? qsTr("Hide this icon") : qsTr("Remove this icon")
            Accessible.onPressAction: tile.removed()

            Glyph {
                anchors.centerIn: parent
                name: tile.kind === IconStrip.Theme ? "eye-off" : "close"
                size: tile.kind === IconStrip.Theme ? 12 : 10
                color: Style.content
            }
            MouseArea {
                id: remove

                anchors.fill: parent
                anchors.margins: -2
                hoverEnabled: true
                onClicked: tile.removed()
            }
        }
    }
    C.ToolTip.visible: mouse.containsMouse && kind !== IconStrip.Custom
    C.ToolTip.delay: 700
    C.ToolTip.text: label
}
