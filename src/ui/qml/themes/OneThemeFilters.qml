import QtQuick
import Tavrik

// Which icons of a theme are shown.
Item {
    id: bar

    required property OneTheme theme
    property bool showsFileNames: false
    signal fileNamesToggled(bool shows)

    height: flow.height + 12

    Flow {
        id: flow

        x: Style.pageMargin
        width: parent.width - 2 * x
        spacing: Style.gap

        SegmentedControl {
            objectName: "themeFilter"
            name: qsTr("Shown icons")
            segments: bar.theme.filters
            value: bar.theme.filter
            onChosen: value => bar.theme.filter = value
        }
        SearchField {
            objectName: "themeSearch"
            width: 150
            name: qsTr("Search icons")
            text: bar.theme.search
            onTextEdited: bar.theme.search = text
            onTextChanged: if (!text) bar.theme.search = ""
        }
        CheckRow {
            height: Style.controlHeight
            text: qsTr("Show file names")
            checked: bar.showsFileNames
            onToggled: bar.fileNamesToggled(checked)
        }
    }
}
