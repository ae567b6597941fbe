import QtQuick
import Tavrik

// How the library looks, at its left; what adds to it, at its right.
Item {
    id: bar

    required property ThemesPage page
    signal importAsked()
    signal folderAsked()

    height: 52

    Row {
        anchors.left: parent.left
        anchors.leftMargin: Style.pageMargin
        anchors.verticalCenter: parent.verticalCenter
        spacing: Style.margin
        visible: bar.page.library.count > 0

        SegmentedControl {
            objectName: "previewStyle"
            name: qsTr("Preview style")
            segments: [{ text: qsTr("Scattered"), value: false }, { text: qsTr("Grid"), value: true }]
            value: bar.page.look.showsGrid
            onChosen: value => bar.page.look.showsGrid = value
        }
        CheckRow {
            objectName: "showFileNames"
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Show file names")
            checked: bar.page.look.showsFileNames
            onToggled: bar.page.look.showsFileNames = checked
        }
    }
    Row {
        anchors.right: parent.right
        anchors.rightMargin: Style.pageMargin
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4

        ThemeHelp {}
        GlyphButton {
            objectName: "importFolder"
            name: qsTr("Import a Folder of Pictures…")
            glyph: "folder"
            enabled: !bar.page.work.isRunning
            onClicked: bar.folderAsked()
        }
        GlyphButton {
            objectName: "importTheme"
            name: qsTr("Import a Theme File…")
            glyph: "import"
            enabled: !bar.page.work.isRunning
            onClicked: bar.importAsked()
        }
        GlyphButton {
            objectName: "newTheme"
            name: qsTr("Create New Theme")
            glyph: "plus"
            enabled: !bar.page.work.isRunning
            onClicked: bar.page.isCreating = true
        }
    }
}
