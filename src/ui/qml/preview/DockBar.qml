import QtQuick
import Tavrik

// The Dock, from the Finder to the Trash; the labels show at the pointer.
Rectangle {
    id: bar

    required property PreviewItemsModel tiles
    property bool isAfter: true
    property real room: 600 ///< the width that it may take
    property real tallest: 52 ///< of an icon
    readonly property real side: Math.floor(Math.max(10, Math.min(tallest, (room - 24) / Math.max(1, tiles.count) - 4)))

    width: row.width + 16
    height: side + 14
    radius: Math.min(18, height * 0.3)
    color: Style.dark ? "#30ffffff" : "#80ffffff"
    border.color: Style.dark ? "#38ffffff" : "#b8ffffff"
    visible: tiles.count > 0
    Accessible.role: Accessible.ToolBar
    Accessible.name: qsTr("Dock")

    Row {
        id: row

        anchors.centerIn: parent
        spacing: 4

        Repeater {
            model: bar.tiles

            Item {
                id: tile

                required property bool isGap
                required property bool isLine
                readonly property bool isEmpty: isGap || isLine
                required property bool changesIcon
                required property string titleNow
                required property string titleAfter
                required property string iconNow
                required property string iconAfter
                readonly property string title: bar.isAfter ? titleAfter : titleNow

                width: isGap ? bar.side / 2 : isLine ? 9 : bar.side
                height: bar.side
                Accessible.role: Accessible.Graphic
                Accessible.name: title
                Accessible.description: bar.isAfter && changesIcon ? qsTr("New icon") : ""
                Accessible.ignored: isEmpty

                PreviewIcon {
                    visible: !tile.isEmpty
                    side: bar.side
                    source: bar.isAfter ? tile.iconAfter : tile.iconNow
                }
                Rectangle {
                    anchors.horizontalCenter: parent.horizontalCenter
                    anchors.bottom: parent.bottom
                    anchors.bottomMargin: -5
                    width: 4
                    height: 4
                    radius: 2
                    visible: bar.isAfter && tile.changesIcon
                    color: Style.accent
                }
                Rectangle {
                    anchors.centerIn: parent
                    width: 1
                    height: parent.height - 4
                    visible: tile.isLine
                    color: Style.dark ? "#40ffffff" : "#30000000"
                }
                HoverHandler { id: pointer }
                Rectangle {
                    anchors.horizontalCenter: parent.horizontalCenter
                    anchors.bottom: parent.top
                    anchors.bottomMargin: 12
                    width: label.implicitWidth + 18
                    height: label.implicitHeight + 8
                    radius: 6
                    visible: pointer.hovered && !tile.isEmpty && tile.title
                    color: Style.dark ? "#4a4c60" : "#fbfbfd"
                    border.color: Style.border

                    StyledLabel {
                        id: label

                        anchors.centerIn: parent
                        text: tile.title
                        Accessible.ignored: true
                    }
                }
            }
        }
    }
}
