import QtQuick
import QtQuick.Controls.Basic as C
import Tavrik

// A folder, opened in place.
Item {
    id: panel

    required property PreviewModel preview
    property bool isAfter: true
    readonly property real cellWidth: sheet.width / 7
    readonly property real titleSize: Math.max(8, Math.min(13, cellWidth * 0.13))
    readonly property real cellHeight: cellWidth * 0.66 + titleSize * 1.5 + 16

    visible: opacity > 0
    opacity: preview.isFolderOpen ? 1 : 0

    Behavior on opacity { NumberAnimation { duration: Style.quick } }

    TapHandler { onTapped: panel.preview.closeFolder() }

    StyledLabel {
        id: title

        objectName: (panel.isAfter ? "after:" : "now:") + "folderTitle"
        anchors.bottom: sheet.top
        anchors.bottomMargin: 12
        anchors.left: sheet.left
        anchors.right: sheet.right
        horizontalAlignment: Text.AlignHCenter
        font.pixelSize: Math.max(12, Math.min(22, panel.width * 0.026))
        color: Style.dark ? "#f4f6fb" : "#1f2738"
        text: panel.isAfter ? panel.preview.folderAfter : panel.preview.folderNow
    }
    Rectangle {
        id: sheet

        anchors.horizontalCenter: parent.horizontalCenter
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width * 0.88
        height: Math.min(parent.height - 60, Math.max(1, Math.ceil(panel.preview.folder.count / 7)) * panel.cellHeight + 24)
        radius: 20
        color: Style.dark ? "#3a3d5c" : "#f2f4fc"
        border.color: Style.dark ? "#4b4f70" : "#ffffff"

        TapHandler {} // a tap on the sheet does not close it

        GridView {
            anchors.fill: parent
            anchors.topMargin: 16
            anchors.bottomMargin: 8
            clip: contentHeight > height
            interactive: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds
            cellWidth: panel.cellWidth
            cellHeight: panel.cellHeight
            model: panel.preview.folder
            C.ScrollBar.vertical: C.ScrollBar {}

            delegate: PreviewTile {
                width: panel.cellWidth
                height: panel.cellHeight
                isAfter: panel.isAfter
                iconSide: Math.round(panel.cellWidth * 0.66)
                titleSize: panel.titleSize
            }
        }
    }
}
