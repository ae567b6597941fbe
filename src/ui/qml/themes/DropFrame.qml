import QtQuick
import Tavrik

// Shows that what is dragged can be let go here, and what comes of it.
Rectangle {
    id: frame

    property alias text: label.text

    color: Style.selection
    border.color: Style.accent
    border.width: 2
    radius: Style.corner
    Accessible.ignored: true

    Rectangle {
        anchors.centerIn: parent
        width: Math.min(label.implicitWidth + 32, frame.width - 16)
        height: label.height + 20
        radius: Style.corner
        color: Style.raised
        border.color: Style.border
        visible: label.text

        Label {
            id: label

            anchors.centerIn: parent
            width: Math.min(implicitWidth, frame.width - 48)
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
        }
    }
}
