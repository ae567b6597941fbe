import QtQuick
import Tavrik

// What a page is doing, or what came of it.
Item {
    id: line

    required property PageWork work
    readonly property string text: work.isBusy ? work.activity : work.remark
    readonly property bool isBad: !work.isBusy && work.isRemarkBad

    implicitHeight: Math.max(Style.controlHeight, label.implicitHeight)
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    Glyph {
        id: sign

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        visible: line.text
        name: line.work.isBusy ? "clock" : line.isBad ? "warning" : "check"
        color: line.work.isBusy ? Style.secondary : line.isBad ? Style.warning : Style.good
    }
    Label {
        id: label

        objectName: "work-line"
        anchors.left: sign.right
        anchors.leftMargin: Style.gap
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        wrapMode: Text.Wrap
        maximumLineCount: 4
        elide: Text.ElideRight
        text: line.text
        color: line.work.isBusy ? Style.secondary : Style.text
        Accessible.ignored: true
    }
}
