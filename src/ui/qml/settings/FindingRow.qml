import QtQuick
import Tavrik

// What was found, and below it what can be done, or was.
Item {
    id: row

    required property string sentence
    required property string advice
    required property int condition
    readonly property var signs: ({
        [FindingsModel.Note]: ["info", Style.secondary],
        [FindingsModel.ByHand]: ["warning", Style.warning],
        [FindingsModel.Mendable]: ["warning", Style.warning],
        [FindingsModel.Mended]: ["check", Style.good],
        [FindingsModel.NotMended]: ["warning", Style.danger]
    })

    implicitHeight: texts.height + 16
    Accessible.role: Accessible.ListItem
    Accessible.name: sentence
    Accessible.description: advice

    Glyph {
        id: sign

        anchors.left: parent.left
        anchors.leftMargin: 14
        y: 9
        name: row.signs[row.condition][0]
        color: row.signs[row.condition][1]
    }
    Column {
        id: texts

        anchors.left: sign.right
        anchors.leftMargin: 10
        anchors.right: parent.right
        anchors.rightMargin: 18
        y: 8
        spacing: 2

        Label {
            width: parent.width
            wrapMode: Text.Wrap
            text: row.sentence
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            wrapMode: Text.Wrap
            text: row.advice
            color: row.condition === FindingsModel.Mended ? Style.good : Style.secondary
            Accessible.ignored: true
        }
    }
}
