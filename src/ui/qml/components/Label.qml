import QtQuick
import Tavrik

Text {
    color: Style.text
    font.pixelSize: Style.bodyText
    elide: wrapMode === Text.NoWrap ? Text.ElideRight : Text.ElideNone
    textFormat: Text.PlainText
    verticalAlignment: Text.AlignVCenter
    horizontalAlignment: Text.AlignLeft
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
