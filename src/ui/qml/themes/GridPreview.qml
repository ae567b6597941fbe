pragma ComponentBehavior: Bound

import QtQuick
import Tavrik

// Icons in rows, with their file names on demand.
Item {
    id: preview

    required property list<string> paths
    required property Images images
    property bool showsFileNames: false
    readonly property int columns: showsFileNames ? 3 : 4
    readonly property int rows: showsFileNames ? 2 : 3
    readonly property int size: showsFileNames ? 40 : 36

    Grid {
        anchors.centerIn: parent
        columns: preview.columns

        Repeater {
            model: Math.min(preview.paths.length, preview.columns * preview.rows)

            Item {
                id: cell

                required property int index
                readonly property string path: preview.paths[index] ?? ""

                width: Math.floor((preview.width - 16) / preview.columns)
                height: Math.floor((preview.height - 12) / preview.rows)

                IconImage {
                    anchors.horizontalCenter: parent.horizontalCenter
                    y: preview.showsFileNames ? 3 : (parent.height - size) / 2
                    size: preview.size
                    source: preview.images.ofFile(cell.path, preview.images.revision)
                }
                Label {
                    anchors.bottom: parent.bottom
                    anchors.bottomMargin: 2
                    width: parent.width - 6
                    x: 3
                    visible: preview.showsFileNames
                    horizontalAlignment: Text.AlignHCenter
                    elide: Text.ElideLeft
                    font.pixelSize: Style.smallText
                    color: Style.secondary
                    text: cell.path.slice(cell.path.lastIndexOf("/") + 1)
                }
            }
        }
    }
}
