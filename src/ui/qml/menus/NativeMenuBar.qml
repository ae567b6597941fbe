import QtQuick
import Qt.labs.platform as P
import Tavrik

// The menu bar at the top of a Mac's screen. The system puts the lines of the program's own menu in their places.
P.MenuBar {
    id: bar

    required property Menus menus

    readonly property Instantiator columns: Instantiator {
        model: bar.menus.columns
        delegate: P.Menu {
            id: menu

            required property MenuColumn modelData
            readonly property Instantiator lines: Instantiator {
                model: menu.modelData.actions
                delegate: P.MenuItem {
                    required property MenuAction modelData

                    text: modelData.text
                    shortcut: modelData.shortcut
                    enabled: modelData.isEnabled
                    checkable: modelData.isCheckable
                    checked: modelData.isChecked
                    separator: modelData.isSeparator
                    role: modelData.role === MenuAction.About ? P.MenuItem.AboutRole
                        : modelData.role === MenuAction.Program ? P.MenuItem.ApplicationSpecificRole
                        : modelData.role === MenuAction.Preferences ? P.MenuItem.PreferencesRole
                        : modelData.role === MenuAction.Quit ? P.MenuItem.QuitRole : P.MenuItem.NoRole
                    onTriggered: modelData.trigger()
                }
                onObjectAdded: (index, object) => menu.insertItem(index, object)
                onObjectRemoved: (index, object) => menu.removeItem(object)
            }

            title: modelData.title
        }
        onObjectAdded: (index, object) => bar.insertMenu(index, object)
        onObjectRemoved: (index, object) => bar.removeMenu(object)
    }
}
