import QtQuick
import QtQuick.Templates as T
import Tavrik

// The current icon at full size. Arrows go on to the others.
T.Popup {
    id: popup

    required property AppList list
    readonly property AppRow row: list.currentRow
    readonly property int side: Math.max(128, Math.min(512, parent.height - 140))

    objectName: "largeIcon"
    parent: T.Overlay.overlay
    x: Math.round((parent.width - width) / 2)
    y: Math.round((parent.height - height) / 2)
    padding: Style.pageMargin
    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: contentHeight + topPadding + bottomPadding
    contentWidth: side
    contentHeight: side + Style.margin + texts.implicitHeight
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    onAboutToShow: if (row && row.tiles.tile(list.currentTile, "kind") === IconStrip.Add) list.currentTile = row.tiles.selectedTile

    T.Overlay.modal: Rectangle { color: Style.shade }

    background: Rectangle {
        radius: Style.cornerLarge
        color: Style.window
        border.color: Style.border
        Accessible.role: Accessible.Dialog
        Accessible.name: texts.name
    }
    contentItem: Item {
        focus: true
        Keys.onPressed: event => {
            event.accepted = true
            if (event.key === Qt.Key_Space)
                popup.close()
            else if (event.key === Qt.Key_Escape || !popup.list.handleKey(event))
                event.accepted = false
        }

        IconImage {
            objectName: "largeImage"
            size: popup.side
            source: popup.visible && popup.row ? popup.row.tileSource(popup.list.currentTile) : ""
        }
        Column {
            id: texts

            readonly property string name: popup.row ? popup.row.name : ""

            anchors.bottom: parent.bottom
            width: parent.width
            spacing: 2

            Label {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                font.pixelSize: Style.headingText
                font.weight: Font.DemiBold
                text: texts.name
            }
            Label {
                objectName: "largeLabel"
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                color: Style.secondary
                text: popup.visible && popup.row ? popup.row.tileLabel(popup.list.currentTile) : ""
            }
        }
    }
    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Style.quick }
    }
}
