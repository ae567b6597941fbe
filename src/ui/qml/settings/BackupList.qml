import QtQuick
import Tavrik

Rectangle {
    id: view

    required property BackupsPage page
    required property bool isIdle

    color: Style.content

    ListScroller {
        id: list

        objectName: "backup-list"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: footer.top
        topMargin: 6
        bottomMargin: 6
        leftMargin: 8
        rightMargin: 8
        activeFocusOnTab: true
        focus: true
        keyNavigationEnabled: false
        model: view.page.backups
        currentIndex: view.page.currentRow
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Backups")
        Keys.onUpPressed: view.page.choose(currentIndex - 1)
        Keys.onDownPressed: view.page.choose(currentIndex + 1)

        section.property: "group"
        section.delegate: Label {
            required property string section

            topPadding: 8
            bottomPadding: 4
            leftPadding: 8
            rightPadding: 8
            text: section
            font.pixelSize: Style.smallText
            font.weight: Font.DemiBold
            color: Style.faint
        }

        delegate: BackupRow {
            width: ListView.view.width - 16
            isFocused: isCurrent && list.activeFocus
            onClicked: {
                list.forceActiveFocus()
                view.page.choose(index)
            }
        }
    }
    Column {
        id: footer

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: 14
        spacing: 12

        KeepStepper {
            width: parent.width
            page: view.page
            enabled: view.page.isLoaded
        }
        PushButton {
            objectName: "backup-now"
            width: parent.width
            text: qsTr("Back Up Now")
            enabled: view.isIdle && view.page.isLoaded
            onClicked: view.page.backUpNow()
        }
    }
    Separator {
        anchors.bottom: footer.top
        anchors.bottomMargin: 14
        width: parent.width
    }
    Separator {
        anchors.right: parent.right
        width: 1
        height: parent.height
    }
}
