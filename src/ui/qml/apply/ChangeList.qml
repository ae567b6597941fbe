import QtQuick
import Tavrik

// Every change of a plan, below the headings of their kinds.
Rectangle {
    id: list

    property var groups: []

    radius: Style.corner
    color: Style.sunken
    border.color: Style.line

    ListScroller {
        anchors.fill: parent
        anchors.margins: 1
        topMargin: 8
        bottomMargin: 8
        model: list.groups
        reuseItems: false
        Accessible.name: qsTr("Every change")
        Accessible.role: Accessible.List

        delegate: Column {
            id: group

            required property var modelData

            width: ListView.view.width
            bottomPadding: 8

            Label {
                width: parent.width
                leftPadding: 12
                rightPadding: 12
                text: qsTr("%1 (%2)").arg(group.modelData.title).arg(group.modelData.lines.length)
                font.weight: Font.DemiBold
                font.pixelSize: Style.smallText
                color: Style.secondary
            }
            Repeater {
                model: group.modelData.lines

                Label {
                    required property string modelData

                    width: group.width
                    leftPadding: 12
                    rightPadding: 12
                    topPadding: 2
                    text: modelData
                }
            }
        }
    }
}
