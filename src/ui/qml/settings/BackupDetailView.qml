import QtQuick
import QtQuick.Controls.Basic as C
import Tavrik

// One backup: how Launchpad and the Dock stood, and what has changed since.
Item {
    id: view

    required property WindowModel model
    required property bool isIdle
    readonly property BackupsPage page: model.backups
    readonly property BackupDetail detail: page.detail
    signal restoreAsked()

    Column {
        id: header

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: Style.pageMargin
        anchors.topMargin: Style.margin
        spacing: 2

        Label {
            width: parent.width
            text: view.page.currentTitle
            font.pixelSize: Style.titleText
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        Label {
            objectName: "backup-since"
            width: parent.width
            wrapMode: Text.Wrap
            text: view.detail.isReading && view.detail.pages.length === 0 ? qsTr("Reading the backup…")
                : view.detail.problem ? qsTr("This backup cannot be shown.") : view.detail.since
            color: Style.secondary
        }
    }
    Flickable {
        id: scroller

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: header.bottom
        anchors.topMargin: 14
        anchors.bottom: footer.top
        anchors.bottomMargin: 12
        clip: true
        contentHeight: content.height
        boundsBehavior: Flickable.StopAtBounds
        visible: !view.detail.problem
        opacity: view.detail.isReading ? 0.5 : 1
        C.ScrollBar.vertical: C.ScrollBar {
            policy: scroller.contentHeight > scroller.height ? C.ScrollBar.AsNeeded : C.ScrollBar.AlwaysOff
        }

        Column {
            id: content

            x: Style.pageMargin
            width: scroller.width - 2 * Style.pageMargin
            spacing: 14

            BackupDrawing {
                width: parent.width
                images: view.model.images
                pages: view.detail.pages
                tiles: view.detail.tiles
            }
            Column {
                width: parent.width
                spacing: 4
                visible: view.detail.sinceLines.length > 0

                Label {
                    width: parent.width
                    text: qsTr("What is otherwise now")
                    font.pixelSize: Style.smallText
                    font.weight: Font.DemiBold
                    color: Style.faint
                    Accessible.role: Accessible.Heading
                }
                Repeater {
                    model: view.detail.sinceLines

                    Label {
                        required property string modelData

                        width: content.width
                        wrapMode: Text.Wrap
                        text: modelData
                    }
                }
            }
        }
    }
    EmptyState {
        anchors.centerIn: parent
        visible: view.detail.problem
        glyph: "warning"
        title: qsTr("This backup cannot be opened")
        text: view.detail.problem
    }
    Item {
        id: footer

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: Style.pageMargin
        anchors.bottomMargin: 14
        height: Math.max(line.implicitHeight, Style.controlHeight)

        WorkLine {
            id: line

            anchors.left: parent.left
            anchors.right: buttons.left
            anchors.rightMargin: Style.margin
            anchors.verticalCenter: parent.verticalCenter
            work: view.page.work
        }
        Row {
            id: buttons

            anchors.right: parent.right
            anchors.bottom: parent.bottom
            spacing: Style.gap

            PushButton {
                objectName: "backup-verify"
                text: qsTr("Verify")
                hint: qsTr("Reads the backup and checks that it could be restored.")
                enabled: view.isIdle
                onClicked: view.page.verify()
            }
            PushButton {
                objectName: "backup-restore"
                text: qsTr("Restore…")
                enabled: view.isIdle && !view.detail.isReading && !view.detail.problem
                onClicked: view.restoreAsked()
            }
        }
    }
}
