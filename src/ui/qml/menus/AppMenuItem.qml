import QtQuick
import QtQuick.Templates as T
import Tavrik

T.MenuItem {
    id: item

    required property MenuAction modelData

    width: ListView.view ? ListView.view.width : implicitWidth
    implicitWidth: 250
    implicitHeight: modelData.isSeparator ? 9 : 26
    leftPadding: 26
    rightPadding: 10
    text: modelData.text
    enabled: modelData.isEnabled && !modelData.isSeparator
    Accessible.name: text
    Accessible.ignored: modelData.isSeparator
    onTriggered: modelData.trigger()

    indicator: Glyph {
        x: item.mirrored ? item.width - width - 7 : 7
        anchors.verticalCenter: parent.verticalCenter
        visible: item.modelData.isChecked
        name: "check"
        size: 13
        color: item.highlighted ? Style.textOnAccent : Style.text
    }
    contentItem: Item {
        Label {
            anchors.left: parent.left
            anchors.right: keys.left
            anchors.verticalCenter: parent.verticalCenter
            text: item.text
            color: item.highlighted ? Style.textOnAccent : Style.text
            opacity: item.enabled ? 1 : 0.4
            visible: !item.modelData.isSeparator
            Accessible.ignored: true
        }
        Label {
            id: keys

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: keyText.nativeText
            color: item.highlighted ? Style.textOnAccent : Style.faint
            opacity: item.enabled ? 1 : 0.4
            Accessible.ignored: true
        }
        Separator {
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.leftMargin: -18
            anchors.verticalCenter: parent.verticalCenter
            visible: item.modelData.isSeparator
        }
    }
    background: Rectangle {
        radius: 5
        color: item.highlighted && item.enabled ? Style.accent : "transparent"
    }

    Shortcut {
        id: keyText

        enabled: item.modelData.isEnabled
        sequence: item.modelData.shortcut
        context: Qt.ApplicationShortcut
        onActivated: item.modelData.trigger()
    }
}
