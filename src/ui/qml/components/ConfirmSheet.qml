import QtQuick
import Tavrik

// Asks before something is done that cannot be undone at once. What destroys is never the default.
Sheet {
    id: sheet

    property alias title: title.text
    property alias text: explanation.text
    property var points: [] // sentences below the text
    property string confirmText
    property bool destroys: true
    signal confirmed()

    name: title.text
    contentWidth: 420
    contentHeight: column.implicitHeight
    onAboutToShow: (destroys ? cancel : confirm).forceActiveFocus()

    Column {
        id: column

        width: parent.width
        spacing: 10

        Row {
            width: parent.width
            spacing: 14

            Glyph {
                id: sign

                name: sheet.destroys ? "warning" : "info"
                size: 32
                color: sheet.destroys ? Style.warning : Style.accent
            }
            Column {
                width: parent.width - sign.width - parent.spacing
                spacing: 8

                Label {
                    id: title

                    width: parent.width
                    wrapMode: Text.Wrap
                    font.weight: Font.DemiBold
                    font.pixelSize: Style.headingText
                    Accessible.role: Accessible.Heading
                }
                Label {
                    id: explanation

                    width: parent.width
                    visible: text
                    wrapMode: Text.Wrap
                }
                ListScroller {
                    width: parent.width
                    height: Math.min(contentHeight, 220)
                    visible: count > 0
                    spacing: 6
                    model: sheet.points

                    delegate: Row {
                        id: point

                        required property string modelData

                        width: ListView.view.width
                        spacing: 8

                        Rectangle {
                            id: dot

                            y: 7
                            width: 4
                            height: 4
                            radius: 2
                            color: Style.faint
                        }
                        Label {
                            width: point.width - dot.width - point.spacing - 8
                            wrapMode: Text.Wrap
                            text: point.modelData
                        }
                    }
                }
            }
        }
        Row {
            anchors.right: parent.right
            topPadding: 8
            spacing: Style.gap

            PushButton {
                id: cancel

                objectName: "confirm-cancel"
                text: qsTr("Cancel")
                kind: sheet.destroys ? PushButton.Default : PushButton.Plain
                onClicked: sheet.close()
            }
            PushButton {
                id: confirm

                objectName: "confirm-go"
                text: sheet.confirmText
                kind: sheet.destroys ? PushButton.Danger : PushButton.Default
                onClicked: {
                    sheet.confirmed()
                    sheet.close()
                }
            }
        }
    }
}
