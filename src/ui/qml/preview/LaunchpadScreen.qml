import QtQuick
import Tavrik

// The screen of the Mac with Launchpad and the Dock, as they are or as they would be. Where the pages stand is
// told from outside, so that two screens go together.
Item {
    id: screen

    required property PreviewModel preview
    property bool isAfter: true
    property real position: 0 ///< of the pages; a whole number when they rest
    property int page: 0
    property bool hasDots: true
    signal pageChosen(int page)

    readonly property real dotsBottom: height - dots.y - dots.height

    objectName: isAfter ? "screenAfter" : "screenNow"
    clip: true

    Image {
        anchors.fill: parent
        source: Style.dark ? "wallpaper-dark.svg" : "wallpaper-light.svg"
        sourceSize.width: 1600
        fillMode: Image.PreserveAspectCrop
        smooth: true
        Accessible.ignored: true
    }
    Item {
        id: pages

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.topMargin: 28
        anchors.bottom: dots.top
        opacity: screen.preview.isFolderOpen ? 0.18 : 1
        enabled: !screen.preview.isFolderOpen

        Behavior on opacity { NumberAnimation { duration: Style.quick } }

        Repeater {
            model: screen.preview.pages

            Loader {
                id: loader

                required property int index
                required property PreviewItemsModel items
                readonly property real offset: (LayoutMirroring.enabled ? -1 : 1) * (index - screen.position)

                readonly property real margin: Math.round(pages.width * 0.03)

                x: offset * pages.width + margin
                width: pages.width - 2 * margin
                height: pages.height
                visible: Math.abs(offset) < 1
                // A page is made when it is next, and kept.
                active: Math.abs(index - screen.page) <= 1 || status === Loader.Ready
                sourceComponent: LaunchpadPage {
                    items: loader.items
                    isAfter: screen.isAfter
                    onFolderOpened: key => screen.preview.openFolder(key)
                }
            }
        }
    }
    PageDots {
        id: dots

        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: dock.top
        anchors.bottomMargin: 8
        visible: screen.hasDots && count > 1
        count: screen.preview.pages.count
        current: screen.page
        onChosen: page => screen.pageChosen(page)
    }
    DockBar {
        id: dock

        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 8
        tiles: screen.preview.tiles
        isAfter: screen.isAfter
        room: screen.width - 24
        tallest: Math.min(52, screen.height * 0.085)
    }
    FolderPanel {
        anchors.fill: pages
        preview: screen.preview
        isAfter: screen.isAfter
    }
}
