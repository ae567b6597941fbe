import QtQuick
import QtQuick.Controls.Basic as C
import Tavrik

C.ApplicationWindow {
    id: window

    required property WindowModel model
    readonly property PreferencesPage preferences: model.preferences

    objectName: "settings-window"
    width: 780
    height: 580
    minimumWidth: 700
    minimumHeight: 480
    title: qsTr("Settings")
    color: Style.window
    font.pixelSize: Style.bodyText
    LayoutMirroring.enabled: window.model.isRightToLeft
    LayoutMirroring.childrenInherit: true
    onVisibleChanged: if (visible) preferences.open()

    SettingsTabs {
        id: tabs

        width: parent.width
        preferences: window.preferences
    }
    Loader {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: tabs.bottom
        anchors.bottom: parent.bottom
        active: window.visible
        focus: true
        sourceComponent: [backups, themes, icons, health, updates, leave][window.preferences.tab]
    }

    Component {
        id: backups

        BackupsTab { model: window.model }
    }
    Component {
        id: themes

        ThemesTab { preferences: window.preferences }
    }
    Component {
        id: icons

        IconsTab { model: window.model }
    }
    Component {
        id: health

        HealthTab { model: window.model }
    }
    Component {
        id: updates

        UpdatesTab { model: window.model }
    }
    Component {
        id: leave

        LeaveTab { model: window.model }
    }

    Shortcut {
        sequences: [StandardKey.Close]
        onActivated: window.close()
    }
    Connections {
        target: window.model
        function onAsked(request) {
            if (request === WindowModel.Health)
                window.preferences.tab = PreferencesPage.Health
            else if (request === WindowModel.Leave)
                window.preferences.tab = PreferencesPage.Leave
        }
    }
}
