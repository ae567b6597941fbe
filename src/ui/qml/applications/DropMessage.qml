import QtQuick
import Tavrik

// Why what is held over a row would not be taken in.
Item {
    id: message

    property alias text: label.text

    Glyph {
        id: sign

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        name: "warning"
        color: Style.warning
    }
    Label {
        id: label

        objectName: "dropMessage"
        anchors.left: sign.right
        anchors.leftMargin: Style.gap
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        maximumLineCount: 3
        wrapMode: Text.Wrap
        elide: Text.ElideRight
        Accessible.role: Accessible.AlertMessage
    }
}
