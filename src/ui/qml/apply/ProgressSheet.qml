import QtQuick
import Tavrik

// Covers the window while an apply runs, or another change of Launchpad and the Dock, and cannot be closed.
Sheet {
    id: sheet

    required property WindowModel model
    readonly property ApplyModel apply: model.apply

    objectName: "progress-sheet"
    name: apply.isApplying ? qsTr("Applying Changes") : qsTr("One Moment")
    mustBeAnswered: true
    visible: apply.stage === ApplyModel.Running
    padding: 28
    contentWidth: 380 - 2 * padding
    contentHeight: 280 - 2 * padding

    Column {
        anchors.centerIn: parent
        width: parent.width
        spacing: 12

        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: sheet.name
            font.pixelSize: Style.titleText
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: qsTr("Don't close Tavrik!")
            font.weight: Font.DemiBold
            color: Style.warning
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            text: qsTr("Please be patient, quitting now will cause issues!")
            color: Style.secondary
        }
        Item { width: 1; height: 6 }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: sheet.apply.status
        }
        Rectangle {
            width: parent.width
            height: 6
            radius: 3
            color: Style.line
            visible: sheet.apply.total > 0
            Accessible.role: Accessible.ProgressBar
            Accessible.name: sheet.apply.status

            Rectangle {
                width: parent.width * Math.min(1, sheet.apply.value / Math.max(1, sheet.apply.total))
                height: parent.height
                radius: 3
                color: Style.accent

                Behavior on width { NumberAnimation { duration: Style.calm } }
            }
        }
    }
}
