import QtQuick
import Tavrik

// What is staged, and the two ways on from it.
Item {
    id: bar

    required property WindowModel model

    implicitHeight: column.implicitHeight + 2 * Style.margin

    Column {
        id: column

        anchors.fill: parent
        anchors.margins: Style.margin
        spacing: Style.gap

        Label {
            width: parent.width
            wrapMode: Text.Wrap
            font.pixelSize: Style.smallText
            color: Style.secondary
            text: bar.model.stagedCount === 0 ? qsTr("Everything is applied.")
                                              : qsTr("%n change(s) staged. Your Mac stays as it is until you apply.", "", bar.model.stagedCount)
        }
        PushButton {
            width: parent.width
            text: bar.model.stagedCount > 0 ? qsTr("Apply (%1)…").arg(bar.model.stagedCount) : qsTr("Apply…")
            kind: bar.model.canApply ? PushButton.Default : PushButton.Plain
            enabled: bar.model.canApply
            hint: qsTr("Shows what would change before anything does")
            onClicked: bar.model.apply.begin()
        }
        PushButton {
            width: parent.width
            text: qsTr("Discard")
            enabled: bar.model.canApply
            onClicked: bar.model.edits.discard()
        }
    }
}
