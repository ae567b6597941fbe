import QtQuick
import Tavrik

// Figures beside each other, each with what it counts below it.
Flow {
    id: list

    property var facts: []

    spacing: 10

    Repeater {
        model: list.facts

        Rectangle {
            id: fact

            required property var modelData

            width: Math.max(132, Math.min(list.width, Math.max(figure.implicitWidth, text.implicitWidth) + 28))
            height: 64
            radius: Style.corner
            color: Style.content
            border.color: Style.line
            Accessible.role: Accessible.StaticText
            Accessible.name: qsTr("%1 %2").arg(modelData.figure).arg(modelData.text)

            Column {
                anchors.verticalCenter: parent.verticalCenter
                x: 14
                width: parent.width - 28
                spacing: 2

                Label {
                    id: figure

                    width: parent.width
                    text: fact.modelData.figure
                    font.pixelSize: 18
                    font.weight: Font.DemiBold
                    Accessible.ignored: true
                }
                Label {
                    id: text

                    width: parent.width
                    text: fact.modelData.text
                    font.pixelSize: Style.smallText
                    color: Style.secondary
                    Accessible.ignored: true
                }
            }
        }
    }
}
