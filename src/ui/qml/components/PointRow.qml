import QtQuick
import Tavrik

// One thing that a person should know: a sign, what it is in a few words, and a sentence or two.
Row {
    id: point

    property string glyph
    property string title
    property string text

    spacing: Style.margin

    Glyph {
        id: sign

        y: 2
        name: point.glyph
        size: 26
        color: Style.accent
    }
    Column {
        width: parent.width - sign.width - point.spacing
        spacing: 2

        Label {
            width: parent.width
            text: point.title
            wrapMode: Text.Wrap
            font.weight: Font.DemiBold
        }
        Label {
            width: parent.width
            text: point.text
            wrapMode: Text.Wrap
            color: Style.secondary
        }
    }
}
