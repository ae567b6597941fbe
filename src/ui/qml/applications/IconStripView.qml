import QtQuick
import Tavrik

// The icons that an application can have. A long strip scrolls.
ListView {
    id: strip

    required property Images images
    required property ApplicationsList applications
    required property string appPath
    property PictureDrop drop: null
    property int currentTile: -1
    required property IconStrip tiles
    signal tapped(int at)
    signal removed(int at)

    function sourceOf(kind, path) {
        return kind === IconStrip.Own ? images.ofApp(appPath, images.revision)
             : kind === IconStrip.Add ? "" : images.ofFile(path, images.revision)
    }

    function labelOf(kind, path, place, isPending) {
        return kind === IconStrip.Own ? qsTr("The application's own icon")
             : kind === IconStrip.Add ? qsTr("Add pictures…")
             : kind === IconStrip.Theme ? qsTr("Icon of the theme “%1”").arg(applications.themeOf(path))
             : isPending ? qsTr("Icon %1, not applied yet").arg(place + 1) : qsTr("Icon %1").arg(place + 1)
    }

    orientation: ListView.Horizontal
    model: tiles
    clip: true
    reuseItems: true
    keyNavigationEnabled: false
    boundsBehavior: Flickable.StopAtBounds
    interactive: contentWidth > width
    highlightFollowsCurrentItem: false
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Icons")

    delegate: IconTile {
        property bool isPooled: false // its icon may be gone from the disk

        ListView.onPooled: isPooled = true
        ListView.onReused: isPooled = false
        height: strip.height
        source: isPooled ? "" : strip.sourceOf(kind, path)
        label: strip.labelOf(kind, path, place, isPending)
        drop: kind === IconStrip.Add ? strip.drop : null
        hasChoice: strip.tiles.count > 2
        hasFocus: strip.currentTile === index
        onTapped: strip.tapped(index)
        onRemoved: strip.removed(index)
    }

    Rectangle {
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: 18
        height: 48
        color: Style.content
        opacity: 0.9
        visible: strip.interactive && !strip.atXEnd

        Glyph {
            anchors.centerIn: parent
            name: "right"
            size: 12
            mirror: strip.LayoutMirroring.enabled
        }
    }
}
