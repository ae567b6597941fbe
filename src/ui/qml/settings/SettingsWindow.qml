import QtQuick
import QtQuick.Controls.Basic as C
import Tavrik

C.ApplicationWindow {
    required property WindowModel model

    objectName: "settings-window"
    width: 760
    height: 560
    title: qsTr("Settings")
    color: Style.window
}
