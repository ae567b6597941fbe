import QtQuick
import Tavrik

// The backups at the left, and at the right what the chosen one holds.
Item {
    id: view

    required property WindowModel model
    readonly property BackupsPage page: model.backups
    readonly property bool isIdle: !page.work.isBusy && !model.isBlocked
    readonly property bool isEmpty: page.isLoaded && page.currentRow < 0

    Component.onCompleted: page.refresh()

    BackupList {
        id: list

        anchors.left: parent.left
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        width: 232
        page: view.page
        isIdle: view.isIdle
    }
    BackupDetailView {
        anchors.left: list.right
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        visible: view.page.currentRow >= 0
        model: view.model
        isIdle: view.isIdle
        onRestoreAsked: question.open()
    }
    EmptyState {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.horizontalCenterOffset: list.width / 2
        anchors.verticalCenter: parent.verticalCenter
        visible: view.isEmpty
        glyph: view.page.problem ? "warning" : "clock"
        title: view.page.problem ? qsTr("The backups cannot be shown") : qsTr("No backup yet")
        text: view.page.problem
              || qsTr("The first one keeps Launchpad and the Dock as they are today, for good. Applying changes takes one too.")
    }
    WorkLine {
        anchors.left: list.right
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: Style.pageMargin
        visible: view.isEmpty
        work: view.page.work
    }

    ConfirmSheet {
        id: question

        title: qsTr("Put Launchpad and the Dock back to \u201c%1\u201d?").arg(view.page.currentTitle)
        text: qsTr("This is what happens:")
        points: [
            qsTr("A backup of now is taken first, so that you can come back."),
            qsTr("Apps and folders of Launchpad and the tiles of the Dock return to their places of then, with plain names."),
            qsTr("Restyled apps get their own look back. Your icons and themes stay."),
            qsTr("What is staged and not applied is dropped."),
            qsTr("The Dock restarts; it vanishes for a moment.")
        ]
        confirmText: qsTr("Restore")
        onConfirmed: view.page.restore()
    }
}
