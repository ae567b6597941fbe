import QtQuick
import Tavrik

// What macOS refuses, and where to allow it. It stays until nothing is refused any more.
Item {
    id: bar

    required property PrivacyNote privacy

    height: visible ? content.height + 2 * content.y : 0
    visible: privacy.text !== ""
    Accessible.role: Accessible.AlertMessage
    Accessible.name: privacy.text

    Rectangle {
        anchors.fill: parent
        color: Style.sunken
    }
    Glyph {
        id: sign

        anchors.left: parent.left
        anchors.leftMargin: Style.pageMargin
        y: content.y + 1
        name: "warning"
        color: Style.warning
    }
    Column {
        id: content

        anchors.left: sign.right
        anchors.leftMargin: 10
        anchors.right: parent.right
        anchors.rightMargin: Style.pageMargin
        y: 14
        spacing: 10

        Label {
            width: parent.width
            text: bar.privacy.text
            wrapMode: Text.Wrap
        }
        Row {
            spacing: Style.gap

            PushButton {
                objectName: "privacy-settings"
                text: qsTr("Open Privacy Settings")
                onClicked: bar.privacy.openSettings()
            }
            PushButton {
                objectName: "privacy-again"
                text: qsTr("Look Again")
                enabled: !bar.privacy.isLooking
                onClicked: bar.privacy.look()
            }
        }
    }
    Separator {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
    }
}
