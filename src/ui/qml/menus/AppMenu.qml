import QtQuick
import QtQuick.Templates as T
import Tavrik

T.Menu {
    id: menu

    required property MenuColumn modelData

    title: modelData.title
    implicitWidth: 260
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    padding: 5
    margins: 0
    overlap: 1

    contentItem: ListView {
        objectName: "menu-lines"
        implicitHeight: contentHeight
        model: menu.contentModel
        interactive: false
        currentIndex: menu.currentIndex
    }
    background: Rectangle {
        radius: Style.corner
        color: Style.window
        border.color: Style.border
    }

    Instantiator {
        model: menu.modelData.actions
        delegate: AppMenuItem { }
        onObjectAdded: (index, object) => menu.insertItem(index, object)
        onObjectRemoved: (index, object) => menu.removeItem(object)
    }
}
