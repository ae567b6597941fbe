pragma ComponentBehavior: Bound

import QtQuick
import Tavrik

// The theme's name and reach, and what is done with it as a whole.
Item {
    id: bar

    required property ThemesPage page
    readonly property OneTheme theme: page.theme
    readonly property bool isApplying: page.work.isRunning && page.work.themeID === theme.themeID
    signal exportAsked()

    height: 60

    GlyphButton {
        id: back

        objectName: "backToThemes"
        anchors.left: parent.left
        anchors.leftMargin: Style.pageMargin - 8
        anchors.verticalCenter: parent.verticalCenter
        name: qsTr("All Themes")
        glyph: mirrored ? "right" : "left"
        onClicked: bar.page.showLibrary()
    }
    Column {
        anchors.left: back.right
        anchors.leftMargin: 4
        anchors.right: actions.left
        anchors.rightMargin: Style.margin
        anchors.verticalCenter: parent.verticalCenter
        spacing: 1

        Label {
            objectName: "shownThemeName"
            width: parent.width
            visible: !bar.theme.isEditing
            text: bar.theme.name
            font.pixelSize: Style.headingText
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        TextBox {
            id: field

            objectName: "renameTheme"
            anchors.left: parent.left
            width: Math.min(parent.width, 280)
            visible: bar.theme.isEditing
            name: qsTr("Theme name")
            text: bar.theme.name
            onEditingFinished: bar.theme.rename(text)
            Keys.onEscapePressed: {
                text = bar.theme.name
                bar.theme.isEditing = false
            }
        }
        Label {
            width: parent.width
            text: bar.theme.isToBeRemoved ? qsTr("To be removed when you apply") : bar.theme.nameProblem || bar.theme.coverage
            font.pixelSize: Style.smallText
            color: bar.theme.nameProblem ? Style.danger : bar.theme.isToBeRemoved ? Style.warning : Style.secondary
        }
    }
    Row {
        id: actions

        anchors.right: parent.right
        anchors.rightMargin: Style.pageMargin
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4

        ThemeHelp {}
        GlyphButton {
            objectName: "exportTheme"
            name: qsTr("Export…")
            glyph: "export"
            enabled: !bar.page.work.isRunning
            onClicked: bar.exportAsked()
        }
        GlyphButton {
            objectName: "editTheme"
            name: bar.theme.isEditing ? qsTr("Done Editing") : qsTr("Edit")
            glyph: bar.theme.isEditing ? "check" : "pencil"
            isOn: bar.theme.isEditing
            enabled: !bar.theme.isToBeRemoved
            onClicked: bar.theme.isEditing = !bar.theme.isEditing
        }
        Item {
            width: 6
            height: 1
        }
        PushButton {
            objectName: "binTheme"
            visible: bar.theme.isEditing
            text: qsTr("Move Theme to Bin")
            kind: PushButton.Danger
            enabled: !bar.page.work.isRunning
            onClicked: bar.page.moveToBin(bar.theme.themeID)
        }
        PushButton {
            objectName: "keepTheme"
            visible: bar.theme.isToBeRemoved
            text: qsTr("Undo")
            onClicked: bar.page.keep(bar.theme.themeID)
        }
        PushButton {
            objectName: "applyTheme"
            visible: !bar.theme.isEditing && !bar.theme.isToBeRemoved
            text: bar.isApplying ? qsTr("Applying…") : qsTr("Apply Theme")
            kind: PushButton.Default
            enabled: bar.theme.canApply && !bar.page.work.isRunning
            onClicked: bar.page.apply(bar.theme.themeID)
        }
    }
}
