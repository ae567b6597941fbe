pragma ComponentBehavior: Bound

import QtQuick
import Tavrik

// What was found in a folder of pictures, to be looked at before a theme is made of it.
Sheet {
    id: sheet

    required property FolderImportModel folderImport
    required property Images images
    readonly property bool isReviewed: folderImport.phase === FolderImportModel.Review || folderImport.phase === FolderImportModel.Writing
    readonly property bool isWriting: folderImport.phase === FolderImportModel.Writing

    name: qsTr("Import a Folder of Pictures")
    visible: folderImport.phase !== FolderImportModel.Closed
    mustBeAnswered: isWriting
    contentWidth: 620
    contentHeight: isReviewed ? Math.min(parent.height - 140, 560) : 96
    onClosed: folderImport.cancel()

    Label {
        id: title

        width: parent.width
        text: sheet.isReviewed ? qsTr("Pictures for %n app(s) in “%1”", "", sheet.folderImport.matchCount).arg(sheet.folderImport.folderName)
                               : qsTr("Looking for pictures in “%1”…").arg(sheet.folderImport.folderName)
        font.pixelSize: Style.headingText
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
    }
    Item {
        id: naming

        anchors.top: title.bottom
        anchors.topMargin: 12
        width: parent.width
        height: 50
        visible: sheet.isReviewed

        Label {
            id: caption

            anchors.left: parent.left
            height: field.height
            text: qsTr("Theme name:")
        }
        TextBox {
            id: field

            objectName: "importName"
            anchors.left: caption.right
            anchors.leftMargin: Style.gap
            width: 260
            name: qsTr("Theme name")
            text: sheet.folderImport.themeName
            enabled: !sheet.isWriting
            onTextEdited: sheet.folderImport.themeName = text
            onAccepted: sheet.folderImport.take()
        }
        Label {
            objectName: "importProblem"
            anchors.top: field.bottom
            anchors.topMargin: 2
            anchors.left: field.left
            anchors.right: parent.right
            font.pixelSize: Style.smallText
            color: Style.danger
            text: sheet.folderImport.problem
            Accessible.role: Accessible.AlertMessage
            Accessible.ignored: !text
        }
        CheckRow {
            objectName: "importGuesses"
            anchors.right: parent.right
            height: field.height
            visible: sheet.folderImport.guessCount > 0
            enabled: !sheet.isWriting
            text: qsTr("Take guesses (%1)").arg(sheet.folderImport.guessCount)
            checked: sheet.folderImport.takesGuesses
            onToggled: sheet.folderImport.takesGuesses = checked
        }
    }
    Rectangle {
        anchors.top: naming.bottom
        anchors.topMargin: 4
        anchors.bottom: unmatched.top
        anchors.bottomMargin: Style.gap
        width: parent.width
        visible: sheet.isReviewed
        radius: Style.corner
        color: Style.content
        border.color: Style.line

        ListScroller {
            id: list

            objectName: "importRows"
            anchors.fill: parent
            anchors.margins: 1
            activeFocusOnTab: true
            enabled: !sheet.isWriting
            model: sheet.folderImport
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Matches")
            delegate: FolderImportRow {
                folderImport: sheet.folderImport
                images: sheet.images
                width: ListView.view.width
                isCurrent: ListView.isCurrentItem && list.activeFocus
            }
            Keys.onSpacePressed: if (currentItem) (currentItem as FolderImportRow).toggle()
        }
        Label {
            anchors.centerIn: parent
            visible: list.count === 0
            color: Style.secondary
            text: qsTr("None of the pictures is named after an app.")
        }
    }
    Label {
        id: unmatched

        objectName: "importUnmatched"
        anchors.bottom: buttons.top
        anchors.bottomMargin: Style.margin
        width: parent.width
        visible: sheet.isReviewed && text
        wrapMode: Text.Wrap
        maximumLineCount: 2
        elide: Text.ElideRight
        font.pixelSize: Style.smallText
        color: Style.secondary
        text: sheet.folderImport.unmatched
    }
    Row {
        id: buttons

        anchors.right: parent.right
        anchors.bottom: parent.bottom
        spacing: Style.gap

        PushButton {
            objectName: "cancelImport"
            text: qsTr("Cancel")
            enabled: !sheet.isWriting
            onClicked: sheet.close()
        }
        PushButton {
            objectName: "takeImport"
            visible: sheet.isReviewed
            kind: PushButton.Default
            text: sheet.isWriting ? qsTr("Importing…") : qsTr("Import (%1)").arg(sheet.folderImport.tickedCount)
            enabled: sheet.folderImport.canTake
            onClicked: sheet.folderImport.take()
        }
    }
}
