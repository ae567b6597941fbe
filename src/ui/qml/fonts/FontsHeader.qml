import QtQuick
import Tavrik

// What the names look like, the way back to plain ones, and a text to try.
Item {
    id: header

    required property FontsPage fonts

    implicitHeight: notice.y + notice.height

    Label {
        id: state

        objectName: "fontState"
        anchors.left: parent.left
        anchors.right: actions.left
        anchors.rightMargin: Style.margin
        height: actions.height
        text: header.fonts.state
        font.weight: Font.Medium
        wrapMode: Text.Wrap
    }
    Row {
        id: actions

        anchors.right: parent.right
        spacing: Style.gap

        PushButton {
            objectName: "takeBackFont"
            visible: header.fonts.isStaged
            text: qsTr("Take Back")
            hint: qsTr("Leaves your names as they are")
            onClicked: header.fonts.takeBack()
        }
        PushButton {
            objectName: "resetFonts"
            text: qsTr("Reset to Plain Names")
            enabled: header.fonts.canReset && !header.fonts.isResetStaged
            hint: qsTr("All names return to plain letters when you apply")
            onClicked: header.fonts.reset()
        }
    }
    TextBox {
        id: sample

        objectName: "fontSample"
        anchors.top: state.bottom
        anchors.topMargin: Style.margin
        anchors.left: parent.left
        anchors.right: parent.right
        name: qsTr("Text to try")
        placeholderText: qsTr("Type a text to see it in every style")
        maximumLength: 80
        text: header.fonts.sample
        onTextEdited: header.fonts.sample = text
        Keys.onEscapePressed: header.fonts.sample = ""
    }
    Label {
        id: notice

        anchors.top: sample.bottom
        anchors.topMargin: 10
        anchors.left: parent.left
        anchors.right: parent.right
        text: qsTr("Screen readers may spell out styled letters or skip them.") + " " + header.fonts.lackOfAll
        wrapMode: Text.Wrap
        font.pixelSize: Style.smallText
        color: Style.secondary
    }
}
