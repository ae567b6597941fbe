import QtQuick
import Tavrik

// An application: how it will look, its name, and the icons to choose from.
Item {
    id: row

    required property int index
    required property string bundleID
    required property string name
    required property string styledTitle
    required property string path
    required property string refusal
    required property string caption
    required property bool isStaged
    required property string shownIcon
    required property var displayIcons
    required property var themeIcons
    required property int pendingCount
    required property int selectedIconIndex

    required property Images images
    required property ApplicationsList applications
    required property PictureDrop drop
    property bool isCurrent: false
    property bool hasFocus: false
    property bool isAdding: false
    readonly property bool isDropWelcome: dropArea.isTarget && !message.visible
    property alias currentTile: strip.currentTile
    readonly property alias tiles: strip.tiles
    signal touched(int tile)
    signal pictureAsked()
    signal reasonAsked(Item below)
    signal dropped()

    function activate(at) {
        if (refusal)
            reasonAsked(reason)
        else if (tiles.tile(at, "kind") === IconStrip.Add)
            pictureAsked()
        else
            applications.select(bundleID, tiles.tile(at, "place"))
    }

    function remove(at) {
        const kind = tiles.tile(at, "kind")
        if (kind === IconStrip.Custom || kind === IconStrip.Theme)
            applications.remove(bundleID, tiles.tile(at, "place"))
    }

    function reveal(at) { strip.positionViewAtIndex(at, ListView.Contain) }

    function tileSource(at) { return strip.sourceOf(tiles.tile(at, "kind"), tiles.tile(at, "path")) }

    function tileLabel(at) {
        return strip.labelOf(tiles.tile(at, "kind"), tiles.tile(at, "path"), tiles.tile(at, "place"),
                             tiles.tile(at, "isPending"))
    }

    // Used for another application now.
    function letGo() { strip.positionViewAtBeginning() }

    objectName: "appRow"
    Accessible.role: Accessible.ListItem
    Accessible.name: caption ? qsTr("%1, %2").arg(name).arg(caption) : name
    Accessible.description: refusal
    Accessible.selected: isCurrent
    Accessible.focusable: true
    Accessible.focused: hasFocus

    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: 10
        anchors.rightMargin: 10
        anchors.topMargin: 1
        anchors.bottomMargin: 1
        radius: Style.corner
        color: row.isDropWelcome ? Style.selection
             : row.hasFocus || hover.hovered || dropArea.isTarget ? Style.hover : "transparent"
        border.width: row.isDropWelcome ? 2 : 0
        border.color: Style.accent
    }
    HoverHandler { id: hover }
    TapHandler { onTapped: row.touched(strip.tiles.selectedTile) }

    IconImage {
        id: icon

        anchors.left: parent.left
        anchors.leftMargin: Style.pageMargin
        anchors.verticalCenter: parent.verticalCenter
        size: 48
        opacity: row.refusal ? 0.55 : 1
        source: row.shownIcon ? row.images.ofFile(row.shownIcon, row.images.revision)
                              : row.images.ofApp(row.path, row.images.revision)
    }
    Column {
        id: texts

        anchors.left: icon.right
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(230, Math.round(row.width * 0.27))
        spacing: 2

        Label {
            objectName: "appName"
            width: parent.width
            text: row.name
            color: row.refusal ? Style.secondary : Style.text
            font.weight: Font.Medium
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            visible: row.styledTitle
            text: row.styledTitle
            font.pixelSize: Style.smallText
            color: Style.secondary
            Accessible.ignored: true
        }
        Label {
            objectName: "appCaption"
            width: parent.width
            visible: row.caption
            text: row.caption
            font.pixelSize: Style.smallText
            color: row.isStaged ? Style.accent : Style.secondary
            Accessible.ignored: true
        }
    }
    IconStripView {
        id: strip

        anchors.left: texts.right
        anchors.leftMargin: Style.margin
        anchors.right: parent.right
        anchors.rightMargin: Style.pageMargin
        height: parent.height
        visible: !row.refusal && !message.visible
        images: row.images
        applications: row.applications
        appPath: row.path
        drop: dropArea.showsPicture || row.isAdding ? row.drop : null
        tiles: IconStrip {
            displayIcons: row.displayIcons
            themeIcons: row.themeIcons
            pendingCount: row.pendingCount
            selectedIconIndex: row.selectedIconIndex
        }
        onTapped: at => {
            row.touched(at)
            row.activate(at)
        }
        onRemoved: at => row.remove(at)
    }
    PushButton {
        id: reason

        objectName: "whyNot"
        anchors.right: parent.right
        anchors.rightMargin: Style.pageMargin
        anchors.verticalCenter: parent.verticalCenter
        visible: row.refusal && !message.visible
        focusPolicy: Qt.NoFocus
        text: qsTr("Why Not?")
        hint: row.refusal
        onClicked: row.reasonAsked(reason)
    }
    DropMessage {
        id: message

        anchors.left: texts.right
        anchors.leftMargin: Style.margin
        anchors.right: parent.right
        anchors.rightMargin: Style.pageMargin
        height: parent.height
        visible: dropArea.isTarget && text
        text: row.refusal ? row.refusal : row.drop.count === 0 ? row.drop.refusal : ""
    }
    PictureDropArea {
        id: dropArea

        anchors.fill: parent
        drop: row.drop
        isRefused: row.refusal
        onFilesDropped: files => {
            row.dropped()
            row.applications.addFiles(row.bundleID, files)
        }
        onDataDropped: data => {
            row.dropped()
            row.applications.addData(row.bundleID, data)
        }
    }
}
