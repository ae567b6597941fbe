import QtQuick
import Tavrik

// One list of applications with what finds its way in it.
FocusScope {
    id: view

    required property WindowModel model
    required property bool isSystemList
    readonly property ApplicationsPage page: model.applications
    readonly property ApplicationsList applications: isSystemList ? page.systemApps : page.userApps

    focus: visible

    ApplicationsBar {
        id: bar

        width: parent.width
        page: view.page
        applications: view.applications
        onListAsked: list.forceActiveFocus(Qt.TabFocusReason)
    }
    AppList {
        id: list

        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        focus: true
        visible: view.applications.state === ApplicationsList.Ready
        images: view.model.images
        applications: view.applications
        drop: view.page.drop
        isPreviewing: large.visible
        onPictureAsked: bundleID => picker.ask(bundleID)
        onPreviewAsked: large.open()
        onReasonAsked: (reason, below) => whyNot.show(reason, below)
    }
    ApplicationsState {
        anchors.centerIn: list
        page: view.page
        applications: view.applications
    }
    LargeIcon {
        id: large

        list: list
    }
    WhyNot { id: whyNot }
    PicturePicker {
        id: picker

        patterns: view.page.picturePatterns
        onPicked: (bundleID, files) => view.applications.addFiles(bundleID, files)
    }
    Connections {
        target: view.model
        enabled: view.visible

        function onAsked(request) {
            if (request === WindowModel.Find)
                bar.beginSearch()
            else if (request === WindowModel.AddIcons)
                list.askForPictures()
        }
    }
}
