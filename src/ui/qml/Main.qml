import QtQuick
import QtQuick.Controls.Basic as C
import Tavrik

C.ApplicationWindow {
    id: window

    required property WindowModel model

    width: 1120
    height: 740
    minimumWidth: 860
    minimumHeight: 560
    visible: true
    title: qsTr("Tavrik")
    color: Style.window
    font.pixelSize: Style.bodyText
    palette { // of tool tips and scroll bars
        toolTipBase: Style.raised
        toolTipText: Style.text
        dark: Style.border
        mid: Style.border
    }
    LayoutMirroring.enabled: window.model.isRightToLeft
    LayoutMirroring.childrenInherit: true

    Binding {
        target: Style
        property: "dark"
        value: window.model.isDark
    }

    menuBar: Loader {
        sourceComponent: Qt.platform.os === "osx" ? null : windowMenus

        Component {
            id: windowMenus

            AppMenuBar { content: window.model.menus }
        }
    }
    Loader {
        active: Qt.platform.os === "osx"
        Component.onCompleted: {
            if (active)
                setSource("menus/NativeMenuBar.qml", { menus: window.model.menus })
        }
    }

    Sidebar {
        id: sidebar

        anchors.left: parent.left
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        width: Style.sidebarWidth
        model: window.model
        enabled: !window.model.isBlocked
    }
    Toolbar {
        id: toolbar

        anchors.left: sidebar.right
        anchors.right: parent.right
        anchors.top: parent.top
        model: window.model
        enabled: !window.model.isBlocked
    }
    ContentArea {
        anchors.left: sidebar.right
        anchors.right: parent.right
        anchors.top: toolbar.bottom
        anchors.bottom: parent.bottom
        model: window.model
        enabled: !window.model.isBlocked
    }
    NoticeBar {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.horizontalCenterOffset: Style.sidebarWidth / 2
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Style.margin
        notices: window.model.notices
    }

    WelcomeSheet { model: window.model }
    AboutSheet { model: window.model }
    ApplySheet { model: window.model }
    ProgressSheet { model: window.model }
    AlertSheet { alerts: window.model.alerts }

    Connections {
        target: window.model
        function onAsked(request) {
            if (request === WindowModel.CloseWindow)
                window.close()
            else if (request === WindowModel.Minimize)
                window.showMinimized()
            else if (request === WindowModel.Zoom)
                window.visibility === Window.Maximized ? window.showNormal() : window.showMaximized()
        }
    }
}
