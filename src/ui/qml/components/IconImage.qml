import QtQuick
import Tavrik

// An icon of the Mac, decoded off the main thread at its shown size. Its place is there before it is.
Item {
    id: icon

    property url source
    property int size: 32
    readonly property bool isReady: image.status === Image.Ready

    implicitWidth: size
    implicitHeight: size
    Accessible.ignored: true

    Image {
        id: image

        anchors.fill: parent
        asynchronous: true
        source: icon.source
        sourceSize.width: icon.size * Screen.devicePixelRatio
        sourceSize.height: icon.size * Screen.devicePixelRatio
        fillMode: Image.PreserveAspectFit
        opacity: status === Image.Ready ? 1 : 0
        mipmap: true

        Behavior on opacity { NumberAnimation { duration: Style.quick } }
    }
}
