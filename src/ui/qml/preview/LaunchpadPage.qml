import QtQuick
import Tavrik

// One page of Launchpad: seven columns, and at least five rows.
Item {
    id: page

    required property PreviewItemsModel items
    property bool isAfter: true
    readonly property int rows: Math.max(5, Math.ceil((items ? items.count : 0) / 7))
    readonly property real cellWidth: width / 7
    readonly property real cellHeight: height / rows
    readonly property real titleSize: Math.max(8, Math.min(13, cellWidth * 0.13))
    signal folderOpened(string key)

    Repeater {
        model: page.items

        PreviewTile {
            required property int index

            x: page.LayoutMirroring.enabled ? (6 - index % 7) * page.cellWidth : (index % 7) * page.cellWidth
            y: Math.floor(index / 7) * page.cellHeight + (page.cellHeight - iconSide - 2 - titleSize * 1.5) / 2
            width: page.cellWidth
            height: iconSide + titleSize * 2
            isAfter: page.isAfter
            iconSide: Math.round(Math.max(12, Math.min(page.cellWidth * 0.72, page.cellHeight - titleSize * 1.5 - 10, 112)))
            titleSize: page.titleSize
            onOpened: page.folderOpened(key)
        }
    }
}
