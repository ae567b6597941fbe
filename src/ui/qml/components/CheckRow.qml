import QtQuick
import QtQuick.Templates as T
import Tavrik

T.CheckBox {
    id: row

    implicitWidth: implicitContentWidth
    implicitHeight: 24
    opacity: enabled ? 1 : 0.45
    focusPolicy: Qt.StrongFocus
    Accessible.name: text

    indicator: Rectangle {
        x: row.mirrored ? row.width - width : 0
        y: (row.height - height) / 2
        width: 16
        height: 16
        radius: 4
        color: row.checked ? Style.accent : Style.raised
        border.color: row.visualFocus ? Style.accent : row.checked ? "transparent" : Style.border
        border.width: row.visualFocus ? 2 : 1

        Glyph {
            anchors.centerIn: parent
            visible: row.checked
            name: "check"
            size: 12
            color: Style.textOnAccent
        }
    }
    contentItem: Label {
        leftPadding: row.mirrored ? 0 : row.indicator.width + Style.gap
        rightPadding: row.mirrored ? row.indicator.width + Style.gap : 0
        text: row.text
        Accessible.ignored: true
    }
}
