import QtQuick
import Tavrik

// How many dated backups are kept.
Column {
    id: stepper

    required property BackupsPage page

    spacing: 2

    Item {
        width: parent.width
        height: Math.max(Style.controlHeight, count.implicitHeight)

        Label {
            id: count

            anchors.left: parent.left
            anchors.right: buttons.left
            anchors.rightMargin: Style.gap
            anchors.verticalCenter: parent.verticalCenter
            wrapMode: Text.Wrap
            text: qsTr("Keep the newest %1").arg(stepper.page.keepCount)
        }
        Row {
            id: buttons

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter

            GlyphButton {
                objectName: "keep-less"
                name: qsTr("Keep fewer backups")
                glyph: "minus"
                autoRepeat: true
                enabled: stepper.page.keepCount > 1
                onClicked: stepper.page.keepCount -= 1
            }
            GlyphButton {
                objectName: "keep-more"
                name: qsTr("Keep more backups")
                glyph: "plus"
                autoRepeat: true
                onClicked: stepper.page.keepCount += 1
            }
        }
    }
    Label {
        width: parent.width
        text: stepper.page.keepNote
        wrapMode: Text.Wrap
        font.pixelSize: Style.smallText
        color: Style.secondary
    }
}
