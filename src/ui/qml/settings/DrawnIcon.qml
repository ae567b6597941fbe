import QtQuick
import QtQuick.Controls.Basic as C
import Tavrik

// An application, a folder or a tile in the drawing of a backup. Its name shows below the pointer.
Item {
    id: drawn

    required property Images images
    required property var item
    property int side: 16

    Accessible.ignored: true

    IconImage {
        anchors.centerIn: parent
        size: drawn.side
        visible: drawn.item.path
        source: drawn.images.ofApp(drawn.item.path, drawn.images.revision)
    }
    Rectangle {
        anchors.centerIn: parent
        width: drawn.side
        height: drawn.side
        radius: drawn.side / 4
        visible: !drawn.item.path
        color: drawn.item.isFolder ? Style.pressed : "transparent"
        border.width: drawn.item.isFolder ? 0 : 1
        border.color: Style.border

        Grid {
            anchors.centerIn: parent
            columns: 2
            spacing: 1

            Repeater {
                model: drawn.item.members

                IconImage {
                    required property string modelData

                    size: Math.floor((drawn.side - 4) / 2)
                    source: drawn.images.ofApp(modelData, drawn.images.revision)
                }
            }
        }
    }
    HoverHandler { id: pointer }
    C.ToolTip.visible: pointer.hovered && drawn.item.title
    C.ToolTip.delay: 300
    C.ToolTip.text: drawn.item.title
}
