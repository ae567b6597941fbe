import QtQuick
import Tavrik

// The question that is asked now. Return presses the default button, which stands at the right.
Sheet {
    id: sheet

    required property WindowAlerts alerts

    name: alerts.title
    mustBeAnswered: true
    visible: alerts.isShown
    contentWidth: 380
    contentHeight: column.implicitHeight

    Column {
        id: column

        width: parent.width
        spacing: 10
        focus: true
        Keys.onReturnPressed: sheet.alerts.answer(0)
        Keys.onEnterPressed: sheet.alerts.answer(0)

        Row {
            width: parent.width
            spacing: 12

            Glyph {
                id: sign

                name: sheet.alerts.isWarning ? "warning" : "info"
                size: 32
                color: sheet.alerts.isWarning ? Style.warning : Style.accent
            }
            Column {
                width: parent.width - sign.width - parent.spacing
                spacing: 6

                Label {
                    width: parent.width
                    text: sheet.alerts.title
                    wrapMode: Text.Wrap
                    font.weight: Font.DemiBold
                    font.pixelSize: Style.headingText
                }
                Label {
                    width: parent.width
                    text: sheet.alerts.text
                    wrapMode: Text.Wrap
                }
            }
        }
        Row {
            anchors.right: parent.right
            topPadding: 8
            spacing: Style.gap
            layoutDirection: Qt.RightToLeft

            Repeater {
                model: sheet.alerts.buttons

                PushButton {
                    required property int index
                    required property string modelData

                    text: modelData
                    kind: index === 0 ? PushButton.Default : PushButton.Plain
                    onClicked: sheet.alerts.answer(index)
                }
            }
        }
    }
}
