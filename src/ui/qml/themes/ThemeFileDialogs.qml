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

        objectName: "dialog-import-theme"
        title: qsTr("Import Themes")
        fileMode: FileDialog.OpenFiles
        nameFilters: [qsTr("Themes (*.tavriktheme)")]
        onAccepted: dialogs.page.importFiles(selectedFiles)
    }
    FolderDialog {
        id: pictures

        objectName: "dialog-import-folder"
        title: qsTr("Import a Folder of Pictures")
        onAccepted: dialogs.page.folderImport.begin(selectedFolder)
    }
    FileDialog {
        id: target

        objectName: "dialog-export-theme"
        title: qsTr("Export Theme")
        fileMode: FileDialog.SaveFile
        defaultSuffix: "tavriktheme"
        nameFilters: [qsTr("Themes (*.tavriktheme)")]
        onAccepted: dialogs.page.exportTheme(dialogs.page.theme.themeID, selectedFile)
    }
    ConfirmSheet {
        id: replace

        property string file

        title: qsTr("Replace “%1”?").arg(file)
        text: qsTr("There is a file of this name already. What is in it would be lost.")
        confirmText: qsTr("Replace")
        onConfirmed: dialogs.page.replaceFile()
        onClosed: dialogs.page.keepFile()
    }
    Connections {
        target: dialogs.page
        function onChanged() {
            if (!dialogs.page.fileToReplace)
                return
            replace.file = dialogs.page.fileToReplace
            replace.open()
        }
    }
}
