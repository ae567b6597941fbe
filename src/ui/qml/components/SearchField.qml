import QtQuick
import Tavrik

TextBox {
    id: field

    leftPadding: 28
    rightPadding: text ? 28 : 8
    placeholderText: qsTr("Search")
    inputMethodHints: Qt.ImhNoPredictiveText

    Glyph {
        anchors.verticalCenter: parent.verticalCenter
        x: 8
        name: "search"
        size: 14
    }
    GlyphButton {
        anchors.verticalCenter: parent.verticalCenter
        anchors.right: parent.right
        anchors.rightMargin: 2
        width: 24
        height: 22
        visible: field.text
        name: qsTr("Clear the search")
        glyph: "clear"
        glyphSize: 14
        onClicked: field.clear()
    }

    Keys.onEscapePressed: event => {
        event.accepted = text !== ""
        clear()
    }
}
