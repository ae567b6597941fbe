import QtQuick
import QtQuick.Templates as T
import Tavrik

// One of a few: [{ text, value }].
Rectangle {
    id: control

    required property string name
    property var segments: []
    property var value
    signal chosen(var value)

    implicitWidth: row.implicitWidth + 4
    implicitHeight: Style.controlHeight
    radius: 7
    color: Style.dark ? "#3a3a3f" : "#e4e4e8"
    Accessible.role: Accessible.PageTabList
    Accessible.name: name

    // The arrow keys go through the segments, as on the screen.
    function choose(at, button) {
        if (at < 0 || at >= segments.length)
            return
        control.chosen(segments[at].value)
        button?.forceActiveFocus(Qt.TabFocusReason)
    }

    Row {
        id: row

        anchors.centerIn: parent

        Repeater {
            id: repeater

            model: control.segments

            T.Button {
                id: segment

                required property var modelData
                required property int index
                readonly property bool isChosen: control.value === modelData.value

                function step(by) {
                    control.choose(index + by, repeater.itemAt(index + by))
                }

                implicitWidth: Math.ceil(Math.max(56, implicitContentWidth + 24))
                implicitHeight: control.height - 4
                focusPolicy: Qt.StrongFocus
                Accessible.role: Accessible.PageTab
                Accessible.name: modelData.text
                Accessible.checked: isChosen
                onClicked: control.chosen(modelData.value)

                contentItem: Label {
                    text: segment.modelData.text
                    horizontalAlignment: Text.AlignHCenter
                    font.weight: segment.isChosen ? Font.Medium : Font.Normal
                    Accessible.ignored: true
                }
                background: Rectangle {
                    radius: 5
                    color: segment.isChosen ? (Style.dark ? "#6a6a70" : "#ffffff") : segment.down ? Style.pressed : "transparent"
                    border.width: segment.visualFocus ? 2 : 0
                    border.color: Style.accent
                }
                Keys.onReturnPressed: clicked()
                Keys.onEnterPressed: clicked()
                Keys.onLeftPressed: segment.step(segment.mirrored ? 1 : -1)
                Keys.onRightPressed: segment.step(segment.mirrored ? -1 : 1)
            }
        }
    }
}
