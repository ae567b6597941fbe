import QtQuick
import QtQuick.Controls.Basic as C
import Tavrik

C.ApplicationWindow {
    id: window

    required property WindowModel model
    /// The first picture comes before what it does not show is made.
    property bool wasDrawn: false

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

    onFrameSwapped: wasDrawn = true

    menuBar: Loader {
        readonly property bool isOurs: Qt.platform.os !== "osx"

        height: isOurs ? Style.menuBarHeight : 0
        active: isOurs && window.wasDrawn
        onActiveChanged: if (active) setSource("menus/AppMenuBar.qml", { content: window.model.menus })
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
    PrivacyBar {
        id: privacyBar

        anchors.left: sidebar.right
        anchors.right: parent.right
        anchors.top: toolbar.bottom
        privacy: window.model.privacy
    }
    ContentArea {
        anchors.left: sidebar.right
        anchors.right: parent.right
        anchors.top: privacyBar.bottom
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

    Loader {
        // A question may come before a window that is covered or minimized is ever drawn.
        active: window.wasDrawn || window.model.alerts.isShown
        onActiveChanged: if (active) setSource("Sheets.qml", { model: window.model })
        Component.onCompleted: activeChanged()
    }

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
