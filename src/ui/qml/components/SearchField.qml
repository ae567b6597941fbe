import QtQuick
import Tavrik

TextBox {
    id: field

    readonly property bool isMirrored: LayoutMirroring.enabled
    readonly property real roomToClear: text ? 28 : 8

    leftPadding: isMirrored ? roomToClear : 28
    rightPadding: isMirrored ? 28 : roomToClear
    placeholderText: qsTr("Search")
    inputMethodHints: Qt.ImhNoPredictiveText

    Glyph {
        objectName: "search-sign"
        anchors.verticalCenter: parent.verticalCenter
        anchors.left: parent.left
        anchors.leftMargin: 8
        name: "search"
        size: 14
    }
    GlyphButton {
        objectName: "search-clear"
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
