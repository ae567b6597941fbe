import QtQuick
import Tavrik

// What can be done with a theme, in a pane below a question mark.
GlyphButton {
    id: button

    objectName: "themeHelp"
    name: qsTr("About Themes")
    glyph: "help"
    isOn: help.visible
    hasTip: !help.visible
    onClicked: help.visible = !help.visible

    Popover {
        id: help

        name: button.name
        x: button.mirrored ? 0 : button.width - width
        contentWidth: 380
        contentHeight: text.implicitHeight

        Label {
            id: text

            objectName: "themeHelpText"
            width: help.contentWidth
            wrapMode: Text.Wrap
            lineHeight: 1.15
            text: qsTr("- Theme Name: Change how this theme appears in your library\n\n- Icons: Click any icon to hide/show it from being applied when using this theme")
                  + "\n\n" + qsTr("- Edit Mode: Rename the theme and its icon files (a file is named after its application's bundle identifier), delete icons, or move the whole theme to the Bin. Deleting happens when you apply; until then you can undo it")
                  + "\n\n" + qsTr("- Drag and Drop: Drop pictures named after applications anywhere, or drop one picture on the application that it is for")
        }
    }
}
