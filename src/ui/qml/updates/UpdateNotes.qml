import QtQuick
import QtQuick.Controls.Basic as C
import Tavrik

// What is new in a version: plain text that scrolls, by the arrow keys too.
Rectangle {
    id: notes

    property alias text: words.text

    implicitHeight: Math.min(scroller.contentHeight, 200) + 2
    radius: Style.corner
    color: Style.content
    border.width: scroller.visualFocus ? 2 : 1
    border.color: scroller.visualFocus ? Style.accent : Style.line

    Flickable {
        id: scroller

        readonly property bool visualFocus: activeFocus && contentHeight > height

        objectName: "update-notes"
        anchors.fill: parent
        anchors.margins: 1
        clip: true
        contentHeight: words.height + 24
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: contentHeight > height
        Accessible.role: Accessible.StaticText
        Accessible.name: qsTr("What is new: %1").arg(words.text)
        Keys.onDownPressed: contentY = Math.min(contentY + 40, Math.max(0, contentHeight - height))
        Keys.onUpPressed: contentY = Math.max(contentY - 40, 0)
        C.ScrollBar.vertical: C.ScrollBar {
            policy: scroller.contentHeight > scroller.height ? C.ScrollBar.AsNeeded : C.ScrollBar.AlwaysOff
        }

        Label {
            id: words

            x: 14
            y: 12
            width: scroller.width - 28
            wrapMode: Text.Wrap
            lineHeight: 1.15
            verticalAlignment: Text.AlignTop
            Accessible.ignored: true
        }
    }
}
