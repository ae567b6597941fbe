import QtQuick
import QtQuick.Templates as T
import Tavrik

// The menu bar in the window, where the system has none of its own at the top of the screen.
T.MenuBar {
    id: bar

    required property Menus content

    implicitHeight: Style.menuBarHeight
    implicitWidth: contentItem.implicitWidth
    Accessible.name: qsTr("Menu bar")

    background: Rectangle { color: Style.sidebar }
    contentItem: Row {
        objectName: "menu-titles"
        spacing: 0
        leftPadding: 6

        Repeater { model: bar.contentModel }
    }
    delegate: T.MenuBarItem {
        id: title

        implicitWidth: implicitContentWidth + 20
        implicitHeight: Style.menuBarHeight
        Accessible.name: text

        contentItem: Label {
            text: title.text
            horizontalAlignment: Text.AlignHCenter
            font.weight: bar.itemAt(0) === title ? Font.DemiBold : Font.Normal
            Accessible.ignored: true
        }
        background: Rectangle {
            anchors.fill: parent
            anchors.margins: 2
            radius: 5
            color: title.highlighted ? Style.pressed : "transparent"
        }
    }

    Instantiator {
        model: bar.content.columns
        delegate: AppMenu { }
        onObjectAdded: (index, object) => bar.insertMenu(index, object)
        onObjectRemoved: (index, object) => bar.removeMenu(object)
    }
}
