import QtQuick
import Tavrik

// Two screens, now and after: side by side, or one over the other with a divider.
FocusScope {
    id: comparison

    objectName: "comparison"

    required property PreviewModel preview
    property bool isSplit: true ///< one over the other
    property real share: 0.5
    property int page: 0
    property real position: 0
    readonly property int forwards: LayoutMirroring.enabled ? -1 : 1 ///< of pages, to the right
    readonly property int lastPage: Math.max(0, preview.pages.count - 1)

    function turnTo(page: int) {
        comparison.page = Math.max(0, Math.min(page, lastPage))
        slide.to = comparison.page
        slide.restart()
    }

    activeFocusOnTab: true
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Launchpad and Dock, now and after applying")
    onLastPageChanged: if (page > lastPage) turnTo(lastPage)
    Keys.onLeftPressed: turnTo(page - forwards)
    Keys.onRightPressed: turnTo(page + forwards)
    Keys.onEscapePressed: event => {
        event.accepted = preview.isFolderOpen
        preview.closeFolder()
    }

    component Caption: Rectangle {
        property alias text: label.text

        width: label.implicitWidth + 18
        height: 22
        radius: 11
        color: Style.dark ? "#80000000" : "#b3ffffff"

        Label {
            id: label

            anchors.centerIn: parent
            font.pixelSize: Style.smallText
            font.weight: Font.Medium
        }
    }

    NumberAnimation {
        id: slide

        target: comparison
        property: "position"
        duration: Style.calm
        easing.type: Easing.OutCubic
    }

    LaunchpadScreen {
        id: after

        x: comparison.isSplit ? 0 : parent.width - width
        width: comparison.isSplit ? parent.width : Math.floor((parent.width - 2) / 2)
        height: parent.height
        preview: comparison.preview
        hasDots: !comparison.isSplit
        position: comparison.position
        page: comparison.page
        onPageChosen: page => comparison.turnTo(page)
    }
    Item {
        width: comparison.isSplit ? Math.round(parent.width * comparison.share) : now.width
        height: parent.height
        clip: true

        LaunchpadScreen {
            id: now

            width: after.width
            height: parent.height
            preview: comparison.preview
            isAfter: false
            hasDots: !comparison.isSplit
            position: comparison.position
            page: comparison.page
            onPageChosen: page => comparison.turnTo(page)
        }
    }
    Caption {
        x: 10
        y: 8
        text: qsTr("Now")
        visible: !comparison.isSplit || comparison.share * parent.width > width + 20
    }
    Caption {
        x: comparison.isSplit ? parent.width - width - 10 : after.x + after.width - width - 10
        y: 8
        text: qsTr("After applying")
        visible: !comparison.isSplit || (1 - comparison.share) * parent.width > width + 20
    }
    SliderHandle {
        x: comparison.share * parent.width - width / 2
        height: parent.height
        visible: comparison.isSplit
        share: comparison.share
        room: parent.width
        onMoved: share => comparison.share = Math.max(0, Math.min(1, share))
    }
    // Over the divider, which would cover the middle one.
    PageDots {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: after.dotsBottom
        visible: comparison.isSplit && count > 1
        count: comparison.preview.pages.count
        current: comparison.page
        hasCursor: comparison.activeFocus
        onChosen: page => comparison.turnTo(page)
    }

    DragHandler {
        id: swipe

        target: null
        yAxis.enabled: false
        enabled: !comparison.preview.isFolderOpen
        onActiveTranslationChanged: {
            if (active)
                comparison.position = comparison.page - comparison.forwards * activeTranslation.x / after.width
        }
        onActiveChanged: {
            if (active) {
                slide.stop()
                return
            }
            const moved = comparison.position - comparison.page
            comparison.turnTo(comparison.page + (moved > 0.15 ? 1 : moved < -0.15 ? -1 : 0))
        }
    }
    WheelHandler {
        property real collected: 0

        orientation: Qt.Horizontal
        onWheel: event => {
            if (slide.running)
                return
            collected += event.angleDelta.x
            if (Math.abs(collected) < 120)
                return
            comparison.turnTo(comparison.page + (collected < 0 ? 1 : -1) * comparison.forwards)
            collected = 0
        }
    }
}
