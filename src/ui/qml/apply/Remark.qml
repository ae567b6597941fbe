import QtQuick
import Tavrik

// A line with a sign before it, and at times a button behind it.
Row {
    id: remark

    property string glyph
    property color color
    property alias text: text.text
    property string actionText
    signal action()

    spacing: 10

    Glyph {
        id: sign

        y: 1
        name: remark.glyph
        color: remark.color
    }
    Label {
        id: text

        width: remark.width - sign.width - remark.spacing - (button.visible ? button.width + remark.spacing : 0)
        wrapMode: Text.Wrap
    }
    PushButton {
        id: button

        objectName: "remark-action"
        visible: remark.actionText
        text: remark.actionText
        onClicked: remark.action()
    }
}
