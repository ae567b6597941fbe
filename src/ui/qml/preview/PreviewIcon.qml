import QtQuick
import Tavrik

// An application's icon at any size, decoded at one of a few, so that a window that is made larger does not
// decode again at every step.
Item {
    id: icon

    property url source
    property real side: 64

    width: side
    height: side
    Accessible.ignored: true

    IconImage {
        width: icon.width
        height: icon.height
        size: icon.side <= 24 ? 24 : icon.side <= 56 ? 56 : 112
        source: icon.source
    }
    Rectangle {
        anchors.fill: parent
        anchors.margins: parent.width * 0.08
        radius: width * 0.22
        visible: String(icon.source) === ""
        color: Style.dark ? "#26ffffff" : "#80ffffff"
        border.color: Style.dark ? "#33ffffff" : "#33000000"

        Label {
            anchors.centerIn: parent
            text: "?"
            font.pixelSize: Math.max(8, parent.width * 0.5)
            color: Style.secondary
            Accessible.ignored: true
        }
    }
}
