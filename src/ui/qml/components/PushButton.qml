import QtQuick
import QtQuick.Templates as T
import Tavrik

T.Button {
    id: button

    enum Kind { Plain, Default, Danger }
    property int kind: PushButton.Plain
    property string hint

    implicitWidth: Math.ceil(Math.max(64, contentItem.implicitWidth + leftPadding + rightPadding))
    implicitHeight: Style.controlHeight
    leftPadding: 14
    rightPadding: 14
    opacity: enabled ? 1 : 0.45
    focusPolicy: Qt.StrongFocus
    Accessible.name: text
    Accessible.description: hint

    contentItem: Label {
        text: button.text
        horizontalAlignment: Text.AlignHCenter
        font.weight: button.kind === PushButton.Plain ? Font.Normal : Font.Medium
        color: button.kind === PushButton.Default ? Style.textOnAccent
             : button.kind === PushButton.Danger ? Style.danger : Style.text
        Accessible.ignored: true
    }
    background: Rectangle {
        radius: 6
        color: button.kind === PushButton.Default ? (button.down ? Style.accentPressed : Style.accent)
             : button.down ? Qt.tint(Style.raised, Style.pressed) : Style.raised
        border.color: button.kind === PushButton.Default ? "transparent" : Style.border

        Rectangle {
            anchors.fill: parent
            anchors.margins: -3
            radius: 9
            color: "transparent"
            border.width: 3
            border.color: Style.selection
            visible: button.visualFocus
        }
    }

    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
}
