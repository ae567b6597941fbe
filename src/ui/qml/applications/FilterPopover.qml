import QtQuick
import Tavrik

// What the lists show.
Popover {
    id: popover

    required property ApplicationsPage page

    name: qsTr("Filter")
    contentWidth: Math.max(220, column.implicitWidth)
    contentHeight: column.implicitHeight

    Column {
        id: column

        spacing: 4

        Repeater {
            id: options

            model: popover.page.filterOptions

            RadioRow {
                id: option

                required property int index
                required property string modelData

                objectName: "filterOption" + index
                text: modelData
                onClicked: popover.page.filterOption = index
                Binding on checked { value: popover.page.filterOption === option.index }
                Keys.onDownPressed: nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason)
                Keys.onUpPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
            }
        }
        Item { width: 1; height: 4 }
        Separator { width: popover.contentWidth }
        Item { width: 1; height: 4 }
        CheckRow {
            objectName: "filterDock"
            text: qsTr("Dock Items")
            checked: popover.page.showOnlyDockItems
            onToggled: popover.page.showOnlyDockItems = checked
        }
        CheckRow {
            objectName: "filterShape"
            text: qsTr("Non-squircle icons")
            checked: popover.page.showOnlyNonSquircle
            onToggled: popover.page.showOnlyNonSquircle = checked
        }
        CheckRow {
            objectName: "filterUnsupported"
            text: qsTr("Show Unsupported Apps")
            checked: popover.page.showUnsupportedApps
            onToggled: popover.page.showUnsupportedApps = checked
        }
        AnalysisProgress {
            width: popover.contentWidth
            page: popover.page
        }
    }
}
