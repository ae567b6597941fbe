pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Basic as C
import Tavrik

// All themes as cards. Theme files and folders of pictures can be let go anywhere on it.
Item {
    id: view

    required property ThemesPage page
    required property Images images
    signal importAsked()
    signal folderAsked()

    ThemeLibraryBar {
        id: bar

        anchors.left: parent.left
        anchors.right: parent.right
        page: view.page
        onImportAsked: view.importAsked()
        onFolderAsked: view.folderAsked()
    }
    GridView {
        id: grid

        readonly property int columns: Math.max(1, Math.floor(width / 280))
        property bool usesKeys: false

        objectName: "themeLibrary"
        anchors.fill: parent
        anchors.topMargin: bar.height
        leftMargin: Style.pageMargin - 8
        rightMargin: leftMargin
        bottomMargin: Style.pageMargin
        clip: true
        focus: true
        activeFocusOnTab: true
        keyNavigationEnabled: true
        boundsBehavior: Flickable.StopAtBounds
        cellWidth: Math.floor((width - leftMargin - rightMargin) / columns)
        cellHeight: 228
        model: view.page.library
        C.ScrollBar.vertical: C.ScrollBar {
            policy: grid.contentHeight > grid.height ? C.ScrollBar.AsNeeded : C.ScrollBar.AlwaysOff
        }
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Theme library")

        delegate: ThemeCardView {
            page: view.page
            images: view.images
            width: grid.cellWidth
            height: grid.cellHeight
            isCurrent: GridView.isCurrentItem && grid.activeFocus && grid.usesKeys
        }
        Keys.onPressed: usesKeys = true
        Keys.onReturnPressed: if (currentItem) (currentItem as ThemeCardView).open()
        Keys.onEnterPressed: if (currentItem) (currentItem as ThemeCardView).open()
    }
    EmptyState {
        objectName: "emptyThemeLibrary"
        anchors.centerIn: parent
        visible: view.page.isLoaded && grid.count === 0
        glyph: "themes"
        title: qsTr("No Themes Yet")
        text: qsTr("Use the + button above to create a theme and organize your icons.")
    }
    DropArea {
        anchors.fill: parent
        keys: ["text/uri-list"]
        onDropped: drop => {
            view.page.drop(drop.urls)
            drop.accept()
        }

        DropFrame {
            anchors.fill: parent
            visible: parent.containsDrag
            text: qsTr("Drop theme files or a folder of pictures to import them")
        }
    }
}
