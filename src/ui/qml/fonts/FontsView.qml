import QtQuick
import QtQuick.Controls.Basic as C
import Tavrik

// The styled alphabets. A click stages one; another click takes it back.
Item {
    id: view

    required property WindowModel model

    function chooseCurrent() {
        const card = grid.currentItem as StyleCard
        if (card)
            view.model.fonts.choose(card.name)
    }

    onVisibleChanged: if (visible) view.model.fonts.refresh()
    Component.onCompleted: view.model.fonts.refresh()

    FontsHeader {
        id: header

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: Style.pageMargin
        anchors.topMargin: Style.margin
        fonts: view.model.fonts
    }
    GridView {
        id: grid

        readonly property int columns: Math.max(1, Math.floor(width / 300))

        objectName: "fontStyles"
        anchors.left: parent.left
        anchors.leftMargin: Style.pageMargin
        anchors.right: parent.right
        anchors.rightMargin: Style.pageMargin - 12
        anchors.top: header.bottom
        anchors.topMargin: Style.margin
        anchors.bottom: parent.bottom
        cellWidth: Math.floor(width / columns)
        cellHeight: view.model.fonts.hasLacks ? 108 : 92
        bottomMargin: Style.margin
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        cacheBuffer: 4000 // all of them: there are no more than twenty
        activeFocusOnTab: true
        keyNavigationEnabled: true
        highlightMoveDuration: 0
        model: view.model.fonts.styles
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Styles")
        C.ScrollBar.vertical: C.ScrollBar {}

        Keys.onSpacePressed: view.chooseCurrent()
        Keys.onReturnPressed: view.chooseCurrent()
        Keys.onEnterPressed: view.chooseCurrent()

        delegate: StyleCard {
            required property int index

            width: grid.cellWidth - 12
            height: grid.cellHeight - 12
            hasCursor: grid.activeFocus && grid.currentIndex === index
            onClicked: {
                grid.currentIndex = index
                view.model.fonts.choose(name)
            }
        }
    }
}
