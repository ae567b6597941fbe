import QtQuick
import Tavrik

// What a place says when it has nothing to show, and what can be done about it.
Column {
    id: state

    property string glyph
    property alias title: title.text
    property alias text: explanation.text
    property string actionText
    signal action()

    spacing: 10
    width: 340

    Glyph {
        anchors.horizontalCenter: parent.horizontalCenter
        name: state.glyph
        size: 40
        color: Style.faint
        visible: state.glyph
    }
    Label {
        id: title

        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        font.pixelSize: Style.headingText
        font.weight: Font.DemiBold
    }
    Label {
        id: explanation

        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        color: Style.secondary
        visible: explanation.text
    }
    PushButton {
        anchors.horizontalCenter: parent.horizontalCenter
        text: state.actionText
        visible: state.actionText
        onClicked: state.action()
    }
}
