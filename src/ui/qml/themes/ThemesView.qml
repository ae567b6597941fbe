import QtQuick
import Tavrik

// The library, or the theme that is looked at; and what comes up over them.
Item {
    id: view

    required property WindowModel model
    readonly property ThemesPage page: model.themes

    Component.onCompleted: page.open()
    onVisibleChanged: if (visible) page.open() // the settings window changes how previews look

    ThemeOutcome {
        id: outcome

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        work: view.page.work
    }
    ThemeLibraryView {
        anchors.top: outcome.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        page: view.page
        images: view.model.images
        visible: !view.page.theme.themeID
        onImportAsked: files.askForThemeFile()
        onFolderAsked: files.askForFolder()
    }
    OneThemeView {
        anchors.top: outcome.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        page: view.page
        images: view.model.images
        visible: view.page.theme.themeID
        onExportAsked: files.askForTarget()
    }
    ThemeFileDialogs {
        id: files

        page: view.page
    }
    CreateThemeSheet {
        page: view.page
    }
    FolderImportSheet {
        folderImport: view.page.folderImport
        images: view.model.images
    }
}
