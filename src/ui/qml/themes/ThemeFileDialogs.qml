import QtQuick
import QtQuick.Dialogs
import Tavrik

// Asks for files, by the system's own panels.
Item {
    id: dialogs

    required property ThemesPage page

    function askForThemeFile() {
        themeFile.open()
    }
    function askForFolder() {
        pictures.open()
    }
    function askForTarget() {
        target.selectedFile = target.currentFolder + "/" + encodeURIComponent(page.exportName(page.theme.themeID))
        target.open()
    }

    FileDialog {
        id: themeFile

        title: qsTr("Import Themes")
        fileMode: FileDialog.OpenFiles
        nameFilters: [qsTr("Themes (*.tavriktheme)")]
        onAccepted: dialogs.page.importFiles(selectedFiles)
    }
    FolderDialog {
        id: pictures

        title: qsTr("Import a Folder of Pictures")
        onAccepted: dialogs.page.folderImport.begin(selectedFolder)
    }
    FileDialog {
        id: target

        title: qsTr("Export Theme")
        fileMode: FileDialog.SaveFile
        defaultSuffix: "tavriktheme"
        nameFilters: [qsTr("Themes (*.tavriktheme)")]
        onAccepted: dialogs.page.exportTheme(dialogs.page.theme.themeID, selectedFile)
    }
}
