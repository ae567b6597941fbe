import QtQuick
import Tavrik

// One way to lay out the icons of a theme, drawn small.
Column {
    id: choice

    property alias text: row.text
    property alias name: row.objectName
    property bool isChosen: false
    property bool isScattered: false
    signal chosen()

    spacing: 8

    Rectangle {
        width: 190
        height: 116
        radius: Style.cornerLarge
        color: Style.content
        border.width: choice.isChosen ? 2 : 1
        border.color: choice.isChosen ? Style.accent : Style.line

        Repeater {
            model: 6

            Rectangle {
                required property int index
                readonly property int column: index % 3
                readonly property int line: Math.floor(index / 3)

                x: 33 + column * 46 + (choice.isScattered ? [-8, 4, 6, 2, -5, 9][index] : 0)
                y: 21 + line * 42 + (choice.isScattered ? [3, -6, 4, -4, 5, -2][index] : 0)
                width: 32
                height: 32
                radius: 8
                rotation: choice.isScattered ? [-9, 6, 12, 7, -12, -4][index] : 0
                antialiasing: true
                color: Style.accent
                opacity: [0.9, 0.55, 0.35, 0.45, 0.8, 0.6][index]
            }
        }
        TapHandler { onTapped: choice.chosen() }
    }
    RadioRow {
        id: row

        anchors.horizontalCenter: parent.horizontalCenter
        checked: choice.isChosen
        autoExclusive: false
        onClicked: {
            checked = Qt.binding(() => choice.isChosen)
            choice.chosen()
        }
    }
}
