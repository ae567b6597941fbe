import QtQuick
import Tavrik

Sheet {
    id: sheet

    required property ThemesPage page
    readonly property string problem: page.createProblem || page.nameProblem(field.text)
    readonly property bool canCreate: field.text.trim() !== "" && !page.nameProblem(field.text) && !page.work.isRunning

    function create() {
        if (canCreate)
            page.create(field.text, moveIcons.checked)
    }

    name: qsTr("Create New Theme")
    visible: page.isCreating
    mustBeAnswered: page.work.isRunning
    contentWidth: 400
    contentHeight: column.implicitHeight
    onAboutToShow: {
        field.clear()
        moveIcons.checked = false
        field.forceActiveFocus()
    }
    onClosed: page.isCreating = false

    Column {
        id: column

        width: parent.width
        spacing: Style.gap

        Label {
            width: parent.width
            text: sheet.name
            font.pixelSize: Style.headingText
            font.weight: Font.DemiBold
            bottomPadding: 6
            Accessible.role: Accessible.Heading
        }
        TextBox {
            id: field

            objectName: "themeName"
            width: parent.width
            name: qsTr("Theme name")
            placeholderText: qsTr("Theme name")
            onAccepted: sheet.create()
        }
        Label {
            objectName: "themeNameProblem"
            width: parent.width
            height: 18
            font.pixelSize: Style.smallText
            color: Style.danger
            text: sheet.problem
            Accessible.role: Accessible.AlertMessage
            Accessible.ignored: !text
        }
        CheckRow {
            id: moveIcons

            objectName: "moveActiveIcons"
            anchors.left: parent.left
            text: qsTr("Move active icons into theme")
        }
        Label {
            anchors.left: parent.left
            anchors.leftMargin: moveIcons.indicator.width + Style.gap
            anchors.right: parent.right
            wrapMode: Text.Wrap
            font.pixelSize: Style.smallText
            color: Style.secondary
            text: qsTr("All active icons will be moved into the theme upon creation.")
        }
        Row {
            anchors.right: parent.right
            topPadding: Style.margin
            spacing: Style.gap

            PushButton {
                objectName: "cancelTheme"
                text: qsTr("Cancel")
                enabled: !sheet.page.work.isRunning
                onClicked: sheet.close()
            }
            PushButton {
                objectName: "createTheme"
                text: sheet.page.work.isRunning ? qsTr("Creating…") : qsTr("Create")
                kind: PushButton.Default
                enabled: sheet.canCreate
                onClicked: sheet.create()
            }
        }
    }
}
