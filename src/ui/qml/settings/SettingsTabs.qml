import QtQuick
import Tavrik

// The tabs at the window's top, in its middle.
Rectangle {
    id: tabs

    required property PreferencesPage preferences

    implicitHeight: row.implicitHeight + 16
    color: Style.sidebar
    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTr("Settings")

    Row {
        id: row

        anchors.centerIn: parent
        spacing: 4

        SettingsTab {
            objectName: "tab-backups"
            text: qsTr("Backups")
            glyph: "clock"
            isCurrent: tabs.preferences.tab === PreferencesPage.Backups
            onClicked: tabs.preferences.tab = PreferencesPage.Backups
        }
        SettingsTab {
            objectName: "tab-themes"
            text: qsTr("Themes")
            glyph: "themes"
            isCurrent: tabs.preferences.tab === PreferencesPage.Themes
            onClicked: tabs.preferences.tab = PreferencesPage.Themes
        }
        SettingsTab {
            objectName: "tab-icons"
            text: qsTr("Icons")
            glyph: "shape"
            isCurrent: tabs.preferences.tab === PreferencesPage.Icons
            onClicked: tabs.preferences.tab = PreferencesPage.Icons
        }
        SettingsTab {
            objectName: "tab-health"
            text: qsTr("Health")
            glyph: "heart"
            isCurrent: tabs.preferences.tab === PreferencesPage.Health
            onClicked: tabs.preferences.tab = PreferencesPage.Health
        }
        SettingsTab {
            objectName: "tab-updates"
            text: qsTr("Updates")
            glyph: "update"
            isCurrent: tabs.preferences.tab === PreferencesPage.Updates
            onClicked: tabs.preferences.tab = PreferencesPage.Updates
        }
        SettingsTab {
            objectName: "tab-leave"
            text: qsTr("Leave")
            glyph: "leave"
            isCurrent: tabs.preferences.tab === PreferencesPage.Leave
            onClicked: tabs.preferences.tab = PreferencesPage.Leave
        }
    }
    Separator {
        anchors.bottom: parent.bottom
        width: parent.width
    }
}
