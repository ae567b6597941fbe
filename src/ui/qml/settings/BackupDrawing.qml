import QtQuick
import Tavrik

// The pages of Launchpad drawn small, and the Dock below them.
Column {
    id: drawing

    required property Images images
    property var pages: []
    property var tiles: []
    readonly property int side: 15
    readonly property int pitch: 20

    spacing: 14

    Flow {
        width: parent.width
        spacing: 12

        Repeater {
            model: drawing.pages

            Column {
                id: page

                required property var modelData

                spacing: 4
                Accessible.role: Accessible.Grouping
                Accessible.name: qsTr("%1: %2").arg(modelData.title).arg(modelData.items.map(item => item.title).join(", "))

                Rectangle {
                    width: 7 * drawing.pitch + 14
                    height: Math.max(5 * drawing.pitch, grid.height) + 14
                    radius: Style.corner
                    color: Style.sunken
                    border.color: Style.line

                    Grid {
                        id: grid

                        x: 7
                        y: 7
                        columns: 7

                        Repeater {
                            model: page.modelData.items

                            DrawnIcon {
                                required property var modelData

                                width: drawing.pitch
                                height: drawing.pitch
                                side: drawing.side
                                images: drawing.images
                                item: modelData
                            }
                        }
                    }
                }
                Label {
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    text: page.modelData.title
                    font.pixelSize: Style.smallText
                    color: Style.secondary
                    Accessible.ignored: true
                }
            }
        }
    }
    Rectangle {
        width: dock.width + 12
        height: dock.height + 8
        radius: Style.corner
        color: Style.sunken
        border.color: Style.line
        visible: drawing.tiles.length > 0
        Accessible.role: Accessible.Grouping
        Accessible.name: qsTr("Dock: %1").arg(drawing.tiles.map(tile => tile.title).join(", "))

        Flow {
            id: dock

            // As many in a row as there is room for.
            readonly property int columns: Math.max(1, Math.floor((drawing.width - 12) / 26))

            anchors.centerIn: parent
            width: Math.min(columns, Math.max(1, drawing.tiles.length)) * 26

            Repeater {
                model: drawing.tiles

                DrawnIcon {
                    required property var modelData

                    width: 26
                    height: 26
                    side: 21
                    images: drawing.images
                    item: modelData
                }
            }
        }
    }
}
