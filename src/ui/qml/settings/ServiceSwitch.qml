import QtQuick
import Tavrik

// A check box with a line below it.
Column {
    id: row

    required property string name
    property string text
    property string remark
    property bool isOn: false
    signal switched(bool isOn)

    spacing: 2

    CheckRow {
        objectName: row.name
        anchors.left: parent.left
        width: Math.min(implicitWidth, row.width)
        text: row.text
        checked: row.isOn
        Accessible.description: row.remark
        onClicked: {
            row.switched(checked)
            checked = Qt.binding(() => row.isOn)
        }
    }
    Label {
        width: row.width
        leftPadding: row.LayoutMirroring.enabled ? 0 : 16 + Style.gap
        rightPadding: row.LayoutMirroring.enabled ? 16 + Style.gap : 0
        visible: text
        wrapMode: Text.Wrap
        text: row.remark
        color: Style.secondary
        opacity: row.enabled ? 1 : 0.45
    }
}
