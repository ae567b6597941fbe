import QtQuick
import Tavrik

// Launchpad and the Dock, now and with what is staged.
Item {
    id: view

    required property WindowModel model
    readonly property PreviewModel preview: model.preview

    onVisibleChanged: if (visible) comparison.forceActiveFocus()
    Component.onCompleted: comparison.forceActiveFocus()

    Binding {
        target: view.preview
        property: "isShown"
        value: view.visible
    }

    PreviewBar {
        id: bar

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: Style.pageMargin
        anchors.topMargin: 12
        preview: view.preview
        page: comparison.page
        isSplit: comparison.isSplit
        onSplitChosen: isSplit => comparison.isSplit = isSplit
    }
    PreviewComparison {
        id: comparison

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: bar.bottom
        anchors.topMargin: 12
        anchors.bottom: parent.bottom
        preview: view.preview
        focus: true
        visible: view.preview.isLoaded && view.preview.error === "" && view.preview.pages.count > 0
    }
    EmptyState {
        anchors.centerIn: comparison
        visible: view.preview.error !== ""
        glyph: "warning"
        title: qsTr("The preview cannot be drawn")
        text: view.preview.error
    }
    EmptyState {
        anchors.centerIn: comparison
        visible: view.preview.isLoaded && view.preview.error === "" && view.preview.pages.count === 0
        glyph: "apps"
        title: view.preview.onlyChangedPages ? qsTr("No page would change") : qsTr("Launchpad is empty")
    }
}
