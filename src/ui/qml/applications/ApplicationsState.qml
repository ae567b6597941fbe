import QtQuick
import Tavrik

// What stands in the place of a list that has nothing to show.
Item {
    id: states

    required property ApplicationsPage page
    required property ApplicationsList applications
    readonly property bool isLoading: applications.state === ApplicationsList.Loading
    property bool isLate: false

    onIsLoadingChanged: isLate = false

    // What takes no time needs no word.
    Timer {
        interval: 300
        running: states.isLoading
        onTriggered: states.isLate = true
    }

    Label {
        anchors.centerIn: parent
        color: Style.secondary
        text: qsTr("Reading your applications…")
        visible: states.isLoading && states.isLate
    }
    EmptyState {
        objectName: "unreadable"
        anchors.centerIn: parent
        visible: states.applications.state === ApplicationsList.Unreadable
        glyph: "warning"
        title: qsTr("Your applications cannot be listed")
        text: qsTr("The Launchpad database cannot be read. The Dock makes it when it starts; wait a moment, then try again.")
        actionText: qsTr("Try Again")
        onAction: states.page.tryAgain()
    }
    EmptyState {
        anchors.centerIn: parent
        visible: states.applications.state === ApplicationsList.Empty
        glyph: "apps"
        title: qsTr("No applications here")
        text: qsTr("Launchpad shows none of this kind.")
    }
    EmptyState {
        objectName: "noMatch"
        anchors.centerIn: parent
        visible: states.applications.state === ApplicationsList.NoMatch && !states.page.isAnalysing
        glyph: "search"
        title: states.page.searchText ? qsTr("No app matches “%1”").arg(states.page.searchText)
                                      : qsTr("No app passes the filters")
        text: states.page.searchText && states.page.isFiltered
              ? qsTr("Filters hide further apps. Without them there may be one.")
              : states.page.searchText ? qsTr("Search looks at names and at identifiers.") : ""
        actionText: states.page.isFiltered ? qsTr("Clear Filters") : qsTr("Clear Search")
        onAction: states.page.clearFilters()
    }
    AnalysisProgress {
        anchors.centerIn: parent
        width: 260
        visible: states.applications.state === ApplicationsList.NoMatch && page.isAnalysing
        page: states.page
    }
}
