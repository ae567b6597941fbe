import QtQuick
import Tavrik

// What goes on, or what came of it, above what it is about. It stays until it is dismissed.
Item {
    id: bar

    required property ThemeWork work
    readonly property bool hasOutcome: work.outcome !== ""

    height: work.isRunning || hasOutcome ? content.height + 2 * content.y + 1 : 0
    visible: height > 0
    Accessible.role: Accessible.AlertMessage
    Accessible.name: work.isRunning ? work.text : work.outcome

    Rectangle {
        anchors.fill: parent
        color: Style.sunken
    }
    Column {
        id: content

        x: Style.pageMargin
        y: 8
        width: parent.width - 2 * x
        spacing: 4

        Item {
            width: parent.width
            height: Math.max(28, sentence.implicitHeight)

            Glyph {
                id: sign

                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                name: bar.work.isRunning ? "clock" : bar.work.isFailure ? "warning" : "check"
                color: bar.work.isRunning ? Style.secondary : bar.work.isFailure ? Style.warning : Style.good
            }
            Label {
                id: sentence

                objectName: "themeOutcome"
                anchors.left: sign.right
                anchors.leftMargin: Style.gap
                anchors.right: dismiss.left
                anchors.rightMargin: Style.gap
                anchors.verticalCenter: parent.verticalCenter
                wrapMode: Text.Wrap
                text: bar.work.isRunning ? bar.work.text : bar.work.outcome
            }
            GlyphButton {
                id: dismiss

                objectName: "dismissThemeOutcome"
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                visible: !bar.work.isRunning
                name: qsTr("Dismiss")
                glyph: "close"
                glyphSize: 12
                onClicked: bar.work.dismiss()
            }
        }
        ListScroller {
            x: sign.width + Style.gap
            width: parent.width - 2 * x
            height: Math.min(contentHeight, 72)
            visible: !bar.work.isRunning && count > 0
            model: bar.work.details
            delegate: Label {
                required property string modelData

                width: ListView.view.width - 12
                bottomPadding: 4
                wrapMode: Text.Wrap
                font.pixelSize: Style.smallText
                color: Style.secondary
                text: modelData
            }
        }
    }
    Separator {
        anchors.bottom: parent.bottom
        width: parent.width
    }
}
