import QtQuick
import Tavrik

Image {
    property string name
    property color color: Style.secondary
    property int size: 16

    width: size
    height: size
    sourceSize: Qt.size(size * Screen.devicePixelRatio, size * Screen.devicePixelRatio)
    source: name ? "image://glyph/" + name + "/" + String(color).slice(-6) : ""
    Accessible.ignored: true
}
