import QtQuick
import Tavrik

// The ways on from the answer of the update check. Return takes the one at the end.
Item {
    id: buttons

    required property UpdateOffer offer
    readonly property bool isOffered: offer.stage === UpdateOffer.Available
    signal settingsAsked()
    signal closeAsked()

    function focusMain() { main.forceActiveFocus() }

    implicitHeight: Style.controlHeight

    PushButton {
        objectName: "update-skip"
        anchors.left: parent.left
        width: Math.min(implicitWidth, parent.width - row.width - Style.gap)
        visible: buttons.isOffered
        text: qsTr("Skip This Version")
        hint: qsTr("Tells of it no more; the next one is told of again")
        onClicked: buttons.offer.skip()
    }
    Row {
        id: row

        anchors.right: parent.right
        spacing: Style.gap

        PushButton {
            objectName: "update-again"
            visible: buttons.offer.stage === UpdateOffer.Failed
            text: qsTr("Try Again")
            onClicked: buttons.offer.check()
        }
        PushButton {
            objectName: "update-settings"
            visible: buttons.offer.stage === UpdateOffer.Off
            text: qsTr("Settings…")
            onClicked: buttons.settingsAsked()
        }
        PushButton {
            objectName: "update-later"
            visible: buttons.isOffered
            text: qsTr("Later")
            onClicked: buttons.closeAsked()
        }
        PushButton {
            id: main

            objectName: "update-main"
            text: buttons.isOffered ? qsTr("Download…")
                : buttons.offer.stage === UpdateOffer.Checking ? qsTr("Cancel") : qsTr("Close")
            hint: buttons.isOffered ? qsTr("Opens the page in your browser") : ""
            kind: buttons.offer.stage === UpdateOffer.Checking ? PushButton.Plain : PushButton.Default
            focus: true
            onClicked: buttons.isOffered ? buttons.offer.download() : buttons.closeAsked()
        }
    }
}
