import QtQuick
import Tavrik

// Why an application cannot be restyled.
Popover {
    id: popover

    property bool isMirrored: false

    function show(reason, below) {
        sentence.text = reason
        parent = below
        isMirrored = below.LayoutMirroring.enabled
        open()
    }

    objectName: "whyNotPopover"
    name: qsTr("Why not?")
    x: parent && !isMirrored ? parent.width - width : 0
    contentWidth: 320
    contentHeight: row.implicitHeight

    Row {
        id: row

        width: parent.width
        spacing: Style.gap

        Glyph {
            id: sign

            name: "info"
            color: Style.accent
        }
        Label {
            id: sentence

            objectName: "whyNotSentence"
            width: parent.width - sign.width - parent.spacing
            wrapMode: Text.Wrap
        }
    }
}
