import QtQuick
import Tavrik

Item {
    id: row

    required property int index
    required property string app
    required property int number
    required property string path
    required property bool isChosen
    required property bool isCut
    required property Images images
    property bool isLast: false
    signal cutAsked(bool isCut)

    height: 52
    Accessible.role: Accessible.ListItem
    Accessible.name: qsTr("%1, icon %2").arg(app).arg(number)

    IconImage {
        id: icon

        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        size: 36
        source: row.isCut ? row.images.ofFileCut(row.path, row.images.revision)
                          : row.images.ofFile(row.path, row.images.revision)
    }
    Column {
        anchors.left: icon.right
        anchors.leftMargin: 12
        anchors.right: check.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        spacing: 1

        Label {
            width: parent.width
            text: row.app
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            text: row.isChosen ? qsTr("Icon %1, the one in use").arg(row.number) : qsTr("Icon %1").arg(row.number)
            font.pixelSize: Style.smallText
            color: Style.secondary
            Accessible.ignored: true
        }
    }
    CheckRow {
        id: check

        objectName: "cut-" + row.index
        anchors.right: parent.right
        anchors.rightMargin: 18
        anchors.verticalCenter: parent.verticalCenter
        text: qsTr("Cut to shape")
        Accessible.description: row.Accessible.name
        checked: row.isCut
        onClicked: {
            row.cutAsked(checked)
            checked = Qt.binding(() => row.isCut)
        }
    }
    Separator {
        anchors.bottom: parent.bottom
        anchors.left: icon.right
        anchors.leftMargin: 12
        anchors.right: parent.right
        visible: !row.isLast
    }
}
