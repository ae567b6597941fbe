import QtQuick
import Tavrik

// Takes pictures that are dragged onto it, and has what they would become looked up before they are let go.
DropArea {
    id: area

    required property PictureDrop drop
    property bool isRefused: false
    property bool takesFilesAlone: false
    readonly property bool isTarget: containsDrag
    readonly property bool showsPicture: containsDrag && !isRefused
    property bool hasFiles: false
    property string format
    signal filesDropped(var files)
    signal dataDropped(var data)

    onEntered: drag => {
        format = takesFilesAlone ? "" : drop.pictureFormat(drag.formats)
        hasFiles = drag.hasUrls
        if (!hasFiles && !format) {
            drag.accepted = false
            return
        }
        if (!isRefused)
            drop.look(hasFiles ? drag.urls : [], hasFiles ? "" : drag.getDataAsArrayBuffer(format))
    }
    onExited: drop.forget()
    onDropped: drag => {
        if (isRefused) {
            drop.forget()
            return
        }
        drag.accept(Qt.CopyAction)
        if (hasFiles)
            filesDropped(drag.urls)
        else
            dataDropped(drag.getDataAsArrayBuffer(format))
    }
}
