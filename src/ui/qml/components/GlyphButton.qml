import QtQuick
import QtQuick.Controls.Basic as C
import QtQuick.Templates as T
import Tavrik

// A button that is a sign. Its name is its tool tip and what a screen reader says.
T.Button {
    id: button

    required property string name
    property string glyph
    property int glyphSize: 16
    property bool isOn: checked
    property bool hasTip: true // a pane of the button's own says more

    implicitWidth: 32
    implicitHeight: Style.controlHeight
    opacity: enabled ? 1 : 0.4
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    Accessible.name: name

    contentItem: Item {
        Glyph {
            anchors.centerIn: parent
            name: button.glyph
            size: button.glyphSize
            color: button.isOn ? Style.accent : Style.text
        }
    }
    background: Rectangle {
        radius: 6
        color: button.down ? Style.pressed : button.isOn ? Style.selection : button.hovered ? Style.hover : "transparent"
        border.width: button.visualFocus ? 2 : 0
        border.color: Style.accent
    }

    C.ToolTip.visible: hovered && !down && hasTip
    C.ToolTip.delay: 700
    C.ToolTip.text: name

    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
}
