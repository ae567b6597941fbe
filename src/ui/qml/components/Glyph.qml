import QtQuick
import Tavrik

Image {
    property string name
    property color color: Style.secondary
    property int size: 16

    width: size
    height: size
    sourceSize.width: size * Screen.devicePixelRatio
    sourceSize.height: size * Screen.devicePixelRatio
    source: name ? "image://glyph/" + name + "/" + String(color).slice(-6) : ""
    Accessible.ignored: true
}
