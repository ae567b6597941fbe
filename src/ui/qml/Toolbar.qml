import QtQuick
import Tavrik

// The title of the place. Each place puts its own controls at the right of its view's top.
Item {
    id: toolbar

    required property WindowModel model

    implicitHeight: Style.toolbarHeight

    Label {
        anchors.left: parent.left
        anchors.leftMargin: Style.pageMargin
        anchors.verticalCenter: parent.verticalCenter
        font.pixelSize: Style.titleText
        font.weight: Font.DemiBold
        text: toolbar.model.showsPreview ? qsTr("Preview")
            : toolbar.model.place === WindowModel.UserApps ? qsTr("Your Apps")
            : toolbar.model.place === WindowModel.SystemApps ? qsTr("System Apps")
            : toolbar.model.place === WindowModel.Themes ? qsTr("Themes") : qsTr("Fonts")
        Accessible.role: Accessible.Heading
    }
    Row {
        id: actions

        anchors.right: parent.right
        anchors.rightMargin: Style.pageMargin
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4

        GlyphButton {
            name: qsTr("Undo")
            glyph: "undo"
            enabled: toolbar.model.edits.canUndo
            onClicked: toolbar.model.edits.undo()
        }
        GlyphButton {
            name: qsTr("Redo")
            glyph: "redo"
            enabled: toolbar.model.edits.canRedo
            onClicked: toolbar.model.edits.redo()
        }
        GlyphButton {
            name: toolbar.model.showsPreview ? qsTr("Hide the Preview") : qsTr("Show the Preview")
            glyph: "eye"
            isOn: toolbar.model.showsPreview
            onClicked: toolbar.model.showsPreview = !toolbar.model.showsPreview
        }
        GlyphButton {
            name: qsTr("Settings")
            glyph: "gear"
            onClicked: toolbar.model.openSettings()
        }
    }
    Separator {
        anchors.bottom: parent.bottom
        width: parent.width
    }
}
