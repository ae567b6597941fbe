import QtQuick
import Tavrik

Rectangle {
    implicitHeight: 1
    implicitWidth: 1
    color: Style.line
    Accessible.ignored: true
}
