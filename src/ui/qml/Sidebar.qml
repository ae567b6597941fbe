import QtQuick
import Tavrik

Rectangle {
    id: sidebar

    required property WindowModel model

    function countOf(applications) { return applications.total > 0 ? applications.total : "" }

    color: Style.sidebar
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Places")

    component Heading: Label {
        width: parent.width
        leftPadding: 10
        rightPadding: 10
        topPadding: 14
        bottomPadding: 4
        font.pixelSize: Style.smallText
        font.weight: Font.DemiBold
        color: Style.faint
    }

    Column {
        anchors.fill: parent
        anchors.margins: 10
        anchors.topMargin: 14
        spacing: 2

        Heading { text: qsTr("Applications") }
        SidebarItem {
            width: parent.width
            text: qsTr("Your Apps")
            glyph: "apps"
            count: sidebar.countOf(sidebar.model.applications.userApps)
            isCurrent: sidebar.model.place === WindowModel.UserApps
            onClicked: sidebar.model.place = WindowModel.UserApps
        }
        SidebarItem {
            width: parent.width
            text: qsTr("System Apps")
            glyph: "system"
            count: sidebar.countOf(sidebar.model.applications.systemApps)
            isCurrent: sidebar.model.place === WindowModel.SystemApps
            onClicked: sidebar.model.place = WindowModel.SystemApps
        }
        Heading { text: qsTr("Looks") }
        SidebarItem {
            width: parent.width
            text: qsTr("Themes")
            glyph: "themes"
            isCurrent: sidebar.model.place === WindowModel.Themes
            onClicked: sidebar.model.place = WindowModel.Themes
        }
        SidebarItem {
            width: parent.width
            text: qsTr("Fonts")
            glyph: "fonts"
            isCurrent: sidebar.model.place === WindowModel.Fonts
            onClicked: sidebar.model.place = WindowModel.Fonts
        }
    }
    SidebarItem {
        objectName: "update-available"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: staged.top
        anchors.margins: 10
        anchors.bottomMargin: 0
        visible: sidebar.model.updates.offer.newVersion
        text: qsTr("New: Tavrik %1").arg(sidebar.model.updates.offer.newVersion)
        glyph: "download"
        glyphColor: Style.accent
        Accessible.role: Accessible.Button
        onClicked: sidebar.model.updates.offer.show()
    }
    StagedBar {
        id: staged

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        model: sidebar.model
    }
    Separator {
        anchors.right: parent.right
        width: 1
        height: parent.height
    }
}
