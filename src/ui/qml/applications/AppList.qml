import QtQuick
import Tavrik

// The applications. Arrows go from row to row and along a row's icons.
ListScroller {
    id: apps

    required property Images images
    required property ApplicationsList applications
    required property PictureDrop drop
    property int currentTile: 0
    property string addingTo
    property bool isPreviewing: false // then the tile that adds has nothing to show
    readonly property AppRow currentRow: currentItem as AppRow
    signal pictureAsked(string bundleID)
    signal previewAsked()
    signal reasonAsked(string reason, Item below)

    function stepRow(by) {
        currentIndex = Math.max(0, Math.min(count - 1, currentIndex + by))
    }

    function stepTile(by) {
        if (!currentRow || currentRow.refusal)
            return
        let at = currentTile + by
        if (isPreviewing && currentRow.tiles.tile(at, "kind") === IconStrip.Add)
            at += by
        if (at < 0 || at >= currentRow.tiles.count)
            return
        currentTile = at
        currentRow.reveal(currentTile)
    }

    function askForPictures() {
        forceActiveFocus(Qt.ShortcutFocusReason) // so that the row which is meant can be told
        if (currentRow && !currentRow.refusal)
            pictureAsked(currentRow.bundleID)
        else if (currentRow)
            currentRow.activate(0)
    }

    function handleKey(event) {
        const forward = LayoutMirroring.enabled ? -1 : 1
        if (event.matches(StandardKey.Paste)) {
            if (currentRow)
                applications.paste(currentRow.bundleID)
            return true
        }
        switch (event.key) {
        case Qt.Key_Up: stepRow(-1); return true
        case Qt.Key_Down: stepRow(1); return true
        case Qt.Key_PageUp: stepRow(-Math.floor(height / rowHeight)); return true
        case Qt.Key_PageDown: stepRow(Math.floor(height / rowHeight)); return true
        case Qt.Key_Home: stepRow(-count); return true
        case Qt.Key_End: stepRow(count); return true
        case Qt.Key_Left: stepTile(-forward); return true
        case Qt.Key_Right: stepTile(forward); return true
        case Qt.Key_Return:
        case Qt.Key_Enter: currentRow?.activate(currentTile); return true
        case Qt.Key_Delete:
        case Qt.Key_Backspace: currentRow?.remove(currentTile); return true
        }
        return false
    }

    readonly property int rowHeight: 68

    objectName: "appList"
    model: applications.rows
    bottomMargin: Style.gap
    activeFocusOnTab: true
    keyNavigationEnabled: false
    onCurrentRowChanged: currentTile = currentRow?.tiles.selectedTile ?? 0
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Applications")

    delegate: AppRow {
        width: apps.width
        height: apps.rowHeight
        images: apps.images
        applications: apps.applications
        drop: apps.drop
        isCurrent: ListView.isCurrentItem
        hasFocus: isCurrent && apps.activeFocus
        currentTile: hasFocus ? apps.currentTile : -1
        isAdding: apps.addingTo === bundleID
        onTouched: at => {
            apps.currentIndex = index
            apps.currentTile = at
            apps.forceActiveFocus(Qt.MouseFocusReason)
        }
        onDropped: apps.addingTo = bundleID
        onPictureAsked: apps.pictureAsked(bundleID)
        onReasonAsked: below => apps.reasonAsked(refusal, below)
        ListView.onPooled: letGo()
    }

    Keys.onPressed: event => {
        event.accepted = handleKey(event)
        if (!event.accepted && event.key === Qt.Key_Space && currentRow) {
            previewAsked()
            event.accepted = true
        }
    }
    Connections {
        target: apps.applications

        function onAdded(bundleID) {
            if (bundleID !== apps.addingTo)
                return
            apps.addingTo = ""
            apps.drop.forget()
        }
    }
}
