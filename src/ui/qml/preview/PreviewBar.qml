import QtQuick
import Tavrik

// How the two are compared, and how much is otherwise.
Item {
    id: bar

    required property PreviewModel preview
    property int page: 0
    property bool isSplit: true
    readonly property int onThisPage: preview.pages.count > 0 ? preview.pages.changesOn(page) : 0
    signal splitChosen(bool isSplit)

    implicitHeight: Style.controlHeight

    SegmentedControl {
        id: ways

        anchors.left: parent.left
        name: qsTr("Comparison")
        segments: [{ text: qsTr("Divider"), value: true }, { text: qsTr("Side by Side"), value: false }]
        value: bar.isSplit
        onChosen: value => bar.splitChosen(value)
    }
    Label {
        objectName: "previewChanges"
        anchors.left: ways.right
        anchors.leftMargin: Style.margin
        anchors.right: only.left
        anchors.rightMargin: Style.margin
        anchors.verticalCenter: parent.verticalCenter
        color: Style.secondary
        text: bar.preview.changeCount === 0 ? qsTr("Nothing is staged that would show.")
                                            : qsTr("%n change(s), %1 on this page", "", bar.preview.changeCount).arg(bar.onThisPage)
    }
    CheckRow {
        id: only

        objectName: "onlyChangedPages"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: qsTr("Only pages with changes")
        enabled: bar.preview.changeCount > 0 || checked
        checked: bar.preview.onlyChangedPages
        onToggled: bar.preview.onlyChangedPages = checked
    }
}
