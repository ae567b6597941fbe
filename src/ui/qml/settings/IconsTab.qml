import QtQuick
import Tavrik

// Which icons are cut to the outline that icons on a Mac have.
Item {
    id: view

    required property WindowModel model
    readonly property PreferencesPage preferences: model.preferences

    Component.onCompleted: preferences.readShapes()

    Column {
        id: header

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: Style.pageMargin
        spacing: 4

        Label {
            width: parent.width
            text: qsTr("Cut icons to the shape of a Mac")
            font.pixelSize: Style.headingText
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        Label {
            width: parent.width
            wrapMode: Text.Wrap
            text: view.preferences.problem
                  || qsTr("For square pictures among your icons. Your files stay as they are; a change shows when the icon is next applied, or after Refresh Launchpad and Dock.")
            color: view.preferences.problem ? Style.warning : Style.secondary
        }
    }
    Rectangle {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: header.bottom
        anchors.margins: Style.pageMargin
        anchors.topMargin: 14
        height: Math.min(list.contentHeight + 2, view.height - y - Style.pageMargin)
        radius: Style.corner
        color: Style.content
        border.color: Style.line
        visible: view.preferences.shapes.count > 0

        ListScroller {
            id: list

            anchors.fill: parent
            anchors.margins: 1
            model: view.preferences.shapes
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Icons")

            delegate: IconShapeRow {
                width: ListView.view.width
                images: view.model.images
                isLast: index === list.count - 1
                onCutAsked: isCut => view.preferences.setCut(index, isCut)
            }
        }
    }
    EmptyState {
        anchors.centerIn: parent
        visible: view.preferences.areShapesLoaded && view.preferences.shapes.count === 0
        glyph: "shape"
        title: qsTr("No icons of your own yet")
        text: qsTr("Give an app another icon and apply it. Then you can choose here whether it is cut to shape.")
    }
}
