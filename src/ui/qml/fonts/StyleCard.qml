import QtQuick
import QtQuick.Controls.Basic as C
import QtQuick.Templates as T
import Tavrik

// One styled alphabet on names of the person's own.
T.AbstractButton {
    id: card

    required property string name
    required property string sample
    required property string lack
    required property var lacks
    required property bool isCurrent
    required property bool isStaged
    property bool hasCursor: false

    objectName: "style:" + name
    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    Accessible.role: Accessible.RadioButton
    Accessible.name: name
    Accessible.description: lack
    Accessible.checkable: true
    Accessible.checked: isStaged || isCurrent

    background: Rectangle {
        radius: Style.cornerLarge
        color: card.isStaged ? Style.selection : card.down ? Style.pressed : card.hovered ? Style.hover : "transparent"
        border.width: card.isStaged || card.hasCursor ? 2 : 1
        border.color: card.isStaged || card.hasCursor ? Style.accent : Style.line
    }

    Label {
        id: title

        anchors.left: parent.left
        anchors.leftMargin: Style.margin
        anchors.right: marks.left
        anchors.rightMargin: Style.gap
        anchors.top: parent.top
        anchors.topMargin: 12
        text: card.name
        color: Style.secondary
        Accessible.ignored: true
    }
    Row {
        id: marks

        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: title.verticalCenter
        spacing: 6

        StateMark {
            objectName: "current"
            visible: card.isCurrent
            text: qsTr("In use")
        }
        StateMark {
            objectName: "staged"
            visible: card.isStaged
            text: qsTr("Staged")
            isStrong: true
        }
    }
    StyledLabel {
        anchors.left: title.left
        anchors.right: parent.right
        anchors.rightMargin: Style.margin
        anchors.top: title.bottom
        anchors.topMargin: 6
        height: 32
        text: card.sample
        font.pixelSize: 20
        minimumPixelSize: 13
        fontSizeMode: Text.HorizontalFit
        Accessible.ignored: true
    }
    Label {
        id: lackLine

        objectName: "lack"
        anchors.left: title.left
        anchors.right: parent.right
        anchors.rightMargin: Style.margin
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 11
        text: card.lack
        font.pixelSize: Style.smallText
        color: Style.faint
        Accessible.ignored: true
    }

    C.ToolTip.visible: hovered && lacks.length > 0 && lackLine.truncated
    C.ToolTip.delay: 700
    C.ToolTip.text: lacks.join(", ")
}
