pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Basic as C
import Tavrik

// One theme: a tile for each application. Pictures can be let go on a tile, or anywhere else.
Item {
    id: view

    required property ThemesPage page
    required property Images images
    readonly property OneTheme theme: page.theme
    signal exportAsked()

    OneThemeBar {
        id: bar

        anchors.left: parent.left
        anchors.right: parent.right
        page: view.page
        onExportAsked: view.exportAsked()
    }
    OneThemeFilters {
        id: filters

        anchors.top: bar.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        theme: view.theme
        showsFileNames: view.page.look.showsFileNames
        onFileNamesToggled: shows => view.page.look.showsFileNames = shows
    }
    DropArea {
        anchors.top: filters.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        enabled: !view.theme.isToBeRemoved && !view.page.work.isRunning
        keys: ["text/uri-list"]
        onDropped: drop => {
            view.theme.drop(drop.urls, "")
            drop.accept()
        }

        GridView {
            id: grid

            readonly property int columns: Math.max(1, Math.floor((width - leftMargin - rightMargin) / 128))
            property bool usesKeys: false

            objectName: "themeIcons"
            anchors.fill: parent
            anchors.bottomMargin: hint.height
            leftMargin: Style.pageMargin - 6
            rightMargin: leftMargin
            topMargin: 4
            clip: true
            focus: true
            activeFocusOnTab: true
            keyNavigationEnabled: true
            boundsBehavior: Flickable.StopAtBounds
            cellWidth: Math.floor((width - leftMargin - rightMargin) / columns)
            cellHeight: view.theme.isEditing ? 168 : view.page.look.showsFileNames ? 148 : 132
            model: view.theme.icons
            C.ScrollBar.vertical: C.ScrollBar {
                policy: grid.contentHeight > grid.height ? C.ScrollBar.AsNeeded : C.ScrollBar.AlwaysOff
            }
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Icons of %1").arg(view.theme.name)
            onVisibleChanged: if (visible) forceActiveFocus()

            delegate: ThemeIconTile {
                theme: view.theme
                images: view.images
                drop: view.page.dragged
                showsFileNames: view.page.look.showsFileNames
                isBusy: view.page.work.isRunning
                width: grid.cellWidth
                height: grid.cellHeight
                isCurrent: GridView.isCurrentItem && grid.activeFocus && grid.usesKeys
                onClicked: grid.usesKeys = false
            }
            Keys.onSpacePressed: if (currentItem) (currentItem as ThemeIconTile).act()
            Keys.onReturnPressed: if (currentItem) (currentItem as ThemeIconTile).act()
            Keys.onPressed: event => {
                usesKeys = true
                const isDelete = event.key === Qt.Key_Delete || event.key === Qt.Key_Backspace
                if (isDelete && view.theme.isEditing && currentItem) {
                    (currentItem as ThemeIconTile).toggleRemoval()
                    event.accepted = true
                }
            }
            Keys.onEscapePressed: {
                if (view.theme.isEditing)
                    view.theme.isEditing = false
                else
                    view.page.showLibrary()
            }
        }
        EmptyState {
            anchors.centerIn: parent
            visible: grid.count === 0 && view.page.isLoaded
            glyph: "search"
            title: qsTr("Nothing to Show")
            text: view.theme.search ? qsTr("No app of this theme is called “%1”.").arg(view.theme.search)
                                    : qsTr("No app is in this group.")
        }
        Item {
            id: hint

            anchors.bottom: parent.bottom
            width: parent.width
            height: 40

            Separator {
                width: parent.width
            }
            Row {
                anchors.centerIn: parent
                spacing: Style.gap

                Glyph {
                    anchors.verticalCenter: parent.verticalCenter
                    name: "drop"
                }
                Label {
                    objectName: "themeDropHint"
                    anchors.verticalCenter: parent.verticalCenter
                    width: Math.min(implicitWidth, hint.width - 60)
                    color: Style.secondary
                    text: qsTr("Drag and drop images here to add icons to this theme")
                }
            }
        }
        DropFrame {
            anchors.fill: parent
            anchors.margins: 4
            visible: (parent as DropArea).containsDrag || text
            color: "transparent"
            text: view.page.dragged.refusal
        }
    }
}
