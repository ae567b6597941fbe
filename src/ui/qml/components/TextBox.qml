import QtQuick
import QtQuick.Templates as T
import Tavrik

T.TextField {
    id: box

    required property string name
    readonly property bool isCut: !activeFocus && !preeditText && contentWidth > width - leftPadding - rightPadding

    implicitWidth: 200
    implicitHeight: Style.controlHeight
    leftPadding: 8
    rightPadding: 8
    color: isCut ? "transparent" : Style.text
    placeholderTextColor: Style.faint
    selectionColor: Style.accent
    selectedTextColor: Style.textOnAccent
    font.pixelSize: Style.bodyText
    verticalAlignment: TextInput.AlignVCenter
    selectByMouse: true
    Accessible.name: name
    Accessible.role: Accessible.EditableText

    Label {
        x: box.leftPadding
        width: box.width - box.leftPadding - box.rightPadding
        height: box.height
        visible: box.isCut || !box.text && !box.preeditText
        text: box.isCut ? box.text : box.placeholderText
        font: box.font
        elide: Text.ElideMiddle
        color: box.isCut ? Style.text : Style.faint
        Accessible.ignored: true
    }

    background: Rectangle {
        radius: 6
        color: Style.content
        border.color: box.activeFocus ? Style.accent : Style.border
        border.width: box.activeFocus ? 2 : 1
    }
}
