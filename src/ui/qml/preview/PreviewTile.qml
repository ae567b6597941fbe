import QtQuick
import Tavrik

// An application or a folder of Launchpad, as it is or as it would be.
Item {
    id: tile

    required property string key
    required property bool isFolder
    required property bool changesIcon
    required property string titleNow
    required property string titleAfter
    required property string iconNow
    required property string iconAfter
    required property var membersNow
    required property var membersAfter
    property bool isAfter: true
    property real iconSide: 64
    property real titleSize: 12
    readonly property string title: isAfter ? titleAfter : titleNow
    signal opened()

    objectName: (isAfter ? "after:" : "now:") + key
    activeFocusOnTab: isFolder && isAfter
    Accessible.role: isFolder ? Accessible.Button : Accessible.Graphic
    Accessible.name: isFolder ? qsTr("Folder %1").arg(title) : title
    Accessible.description: isAfter && changesIcon ? qsTr("New icon") : ""
    Accessible.onPressAction: if (isFolder) opened()
    Keys.onReturnPressed: event => { if (isFolder) opened(); else event.accepted = false }
    Keys.onSpacePressed: event => { if (isFolder) opened(); else event.accepted = false }

    PreviewIcon {
        id: picture

        anchors.horizontalCenter: parent.horizontalCenter
        visible: !tile.isFolder
        side: tile.iconSide
        source: tile.isAfter ? tile.iconAfter : tile.iconNow
    }
    Rectangle {
        anchors.fill: picture
        anchors.margins: picture.width * 0.06
        visible: tile.isFolder
        radius: width * 0.22
        color: Style.dark ? "#2cffffff" : "#78ffffff"
        border.color: tile.activeFocus ? Style.accent : Style.dark ? "#2effffff" : "#aaffffff"
        border.width: tile.activeFocus ? 2 : 1

        Grid {
            anchors.centerIn: parent
            columns: 3
            spacing: parent.width * 0.05

            Repeater {
                model: tile.isFolder ? (tile.isAfter ? tile.membersAfter : tile.membersNow) : []

                PreviewIcon {
                    required property string modelData

                    side: Math.floor(picture.width * 0.88 * 0.245)
                    source: modelData
                }
            }
        }
    }
    Rectangle {
        x: Math.round(picture.x + picture.width * 0.88)
        y: Math.round(picture.height * 0.02)
        width: Math.max(6, 2 * Math.round(picture.width * 0.07))
        height: width
        radius: width / 2
        visible: tile.isAfter && tile.changesIcon
        color: Style.accent
    }
    StyledLabel {
        anchors.top: picture.bottom
        anchors.topMargin: 2
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: 2
        horizontalAlignment: Text.AlignHCenter
        text: tile.title
        font.pixelSize: tile.titleSize
        color: Style.dark ? "#f4f6fb" : "#1f2738"
        Accessible.ignored: true
    }
    TapHandler {
        enabled: tile.isFolder
        onTapped: tile.opened()
    }
}
