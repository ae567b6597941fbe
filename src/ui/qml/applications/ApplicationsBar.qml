import QtQuick
import Tavrik

// How many applications are shown, and what finds, orders and filters them.
Item {
    id: bar

    required property ApplicationsPage page
    required property ApplicationsList applications
    signal listAsked()

    function beginSearch() {
        search.forceActiveFocus(Qt.ShortcutFocusReason)
        search.selectAll()
    }

    implicitHeight: 48

    Label {
        objectName: "appCount"
        anchors.left: parent.left
        anchors.leftMargin: Style.pageMargin
        anchors.right: tools.left
        anchors.rightMargin: Style.gap
        anchors.verticalCenter: parent.verticalCenter
        color: Style.secondary
        visible: bar.applications.total > 0
        text: bar.applications.shownCount === bar.applications.total
              ? qsTr("%n app(s)", "", bar.applications.total)
              : qsTr("%1 of %n app(s)", "", bar.applications.total).arg(bar.applications.shownCount)
    }
    Row {
        id: tools

        anchors.right: parent.right
        anchors.rightMargin: Style.pageMargin
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4

        SearchField {
            id: search

            objectName: "appSearch"
            width: 220
            name: qsTr("Search applications")
            text: bar.page.searchText
            onTextChanged: bar.page.searchText = text
            Keys.onDownPressed: bar.listAsked()
            Keys.onReturnPressed: bar.listAsked()
        }
        GlyphButton {
            objectName: "sortApps"
            name: bar.page.sortsDescending ? qsTr("Sorted from Z to A. Sort from A to Z")
                                           : qsTr("Sorted from A to Z. Sort from Z to A")
            glyph: "sort"
            isOn: bar.page.sortsDescending
            onClicked: bar.page.sortsDescending = !bar.page.sortsDescending
        }
        GlyphButton {
            id: filter

            objectName: "filterApps"
            name: bar.page.isFiltered ? qsTr("Filter, in use") : qsTr("Filter")
            glyph: "filter"
            isOn: popover.opened
            hasTip: !popover.opened
            onClicked: popover.opened ? popover.close() : popover.open()

            Rectangle {
                objectName: "filterDot"
                anchors.right: parent.right
                anchors.top: parent.top
                anchors.margins: 3
                width: 8
                height: 8
                radius: 4
                color: Style.accent
                visible: bar.page.isFiltered
            }
            FilterPopover {
                id: popover

                x: filter.mirrored ? 0 : filter.width - width
                page: bar.page
            }
        }
    }
}
