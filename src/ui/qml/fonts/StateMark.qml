import QtQuick
import Tavrik

// Says of a style that it is in use, or chosen.
Rectangle {
    id: mark

    property alias text: label.text
    property bool isStrong: false

    implicitWidth: label.implicitWidth + 16
    implicitHeight: 18
    radius: 9
    color: isStrong ? Style.accent : Style.pressed
    Accessible.ignored: true

    Label {
        id: label

        anchors.centerIn: parent
        font.pixelSize: Style.smallText
        font.weight: Font.Medium
        color: mark.isStrong ? Style.textOnAccent : Style.secondary
        Accessible.ignored: true
    }
}
