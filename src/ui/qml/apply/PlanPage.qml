import QtQuick
import Tavrik

Column {
    id: page

    required property ApplyModel apply
    required property bool showsDetails
    signal detailsAsked()
    signal cancelled()

    spacing: 14

    Label {
        width: parent.width
        text: qsTr("Apply Changes")
        font.pixelSize: Style.titleText
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
    }
    Repeater {
        model: page.apply.obstacles

        Remark {
            required property string modelData

            width: page.width
            glyph: "warning"
            color: Style.warning
            text: modelData
            actionText: page.apply.isRefusedByMac ? qsTr("Open Privacy Settings") : ""
            onAction: page.apply.openPrivacySettings()
        }
    }
    Remark {
        width: parent.width
        visible: page.apply.runningApps !== ""
        glyph: "info"
        color: Style.accent
        text: qsTr("These apps are open and must be closed before: %1.").arg(page.apply.runningApps)
        actionText: qsTr("Quit Them for Me")
        onAction: page.apply.askAppsToQuit()
    }
    Column {
        width: parent.width
        spacing: 6
        visible: !page.apply.isRefusedByMac

        Repeater {
            model: page.apply.summary

            Remark {
                required property string modelData

                width: page.width
                glyph: "check"
                color: Style.good
                text: modelData
            }
        }
    }
    ChangeList {
        width: parent.width
        height: 220
        visible: page.showsDetails
        groups: page.apply.details
    }
    Item {
        width: parent.width
        height: Style.controlHeight

        PushButton {
            objectName: "apply-details"
            anchors.left: parent.left
            text: page.showsDetails ? qsTr("Hide Details") : qsTr("Show Every Change")
            visible: page.apply.details.length > 0
            onClicked: page.detailsAsked()
        }
        Row {
            anchors.right: parent.right
            spacing: Style.gap

            PushButton {
                objectName: "apply-cancel"
                text: qsTr("Cancel")
                onClicked: page.cancelled()
            }
            PushButton {
                objectName: "apply-go"
                text: qsTr("Apply")
                kind: PushButton.Default
                focus: true
                enabled: page.apply.obstacles.length === 0
                onClicked: page.apply.apply()
            }
        }
    }
}
