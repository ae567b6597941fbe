import QtQuick
import Tavrik

// Says for a few seconds why something was refused, or that it was done.
Rectangle {
    id: bar

    required property Notices notices

    width: Math.min(row.implicitWidth + 24, parent.width - 2 * Style.pageMargin)
    height: Math.max(36, text.implicitHeight + 16)
    radius: Style.corner
    color: Style.dark ? "#46464c" : "#303034"
    opacity: notices.text ? 1 : 0
    visible: opacity > 0
    Accessible.ignored: !notices.text
    Accessible.role: Accessible.AlertMessage
    Accessible.name: notices.text

    Behavior on opacity { NumberAnimation { duration: Style.calm } }

    Row {
        id: row

        anchors.centerIn: parent
        spacing: 8

        Glyph {
            anchors.verticalCenter: parent.verticalCenter
            name: bar.notices.isRefusal ? "warning" : "check"
            color: bar.notices.isRefusal ? "#ffb340" : "#32d74b"
        }
        Label {
            id: text

            width: Math.min(implicitWidth, bar.parent.width - 2 * Style.pageMargin - 60)
            text: bar.notices.text
            wrapMode: Text.Wrap
            color: "#ffffff"
        }
    }

    Timer {
        id: timer

        interval: 2500 + 45 * bar.notices.text.length
        onTriggered: bar.notices.dismiss()
    }
    Connections {
        target: bar.notices
        function onChanged() {
            if (bar.notices.text)
                timer.restart()
        }
    }
}
