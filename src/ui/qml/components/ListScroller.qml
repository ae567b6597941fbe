import QtQuick
import QtQuick.Controls.Basic as C

// A list that scrolls as lists on a Mac do, with rows that are used again.
ListView {
    id: list

    clip: true
    reuseItems: true
    boundsBehavior: Flickable.StopAtBounds
    cacheBuffer: 400
    highlightMoveDuration: 0
    keyNavigationEnabled: true
    C.ScrollBar.vertical: C.ScrollBar {
        policy: list.contentHeight > list.height ? C.ScrollBar.AsNeeded : C.ScrollBar.AlwaysOff
    }
}
