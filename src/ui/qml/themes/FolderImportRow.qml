import QtQuick
import Tavrik

// An application with the picture that is for it, ticked or not.
Item {
    id: row

    required property FolderImportModel folderImport
    required property Images images
    required property int index
    required property string picture
    required property string fileName
    required property string appName
    required property string appPath
    required property string kind
    required property bool isDoubtful
    required property bool isTicked
    property bool isCurrent: false

    function toggle() {
        folderImport.setTicked(index, !isTicked)
    }

    height: 44
    Accessible.role: Accessible.CheckBox
    Accessible.name: qsTr("%1, %2").arg(appName).arg(fileName)
    Accessible.description: kind
    Accessible.checkable: true
    Accessible.checked: isTicked
    Accessible.onToggleAction: toggle()

    Rectangle {
        anchors.fill: parent
        color: row.isCurrent ? Style.selection : pointer.containsMouse ? Style.hover : "transparent"
    }
    MouseArea {
        id: pointer

        anchors.fill: parent
        hoverEnabled: true
        onClicked: {
            row.ListView.view.currentIndex = row.index
            row.toggle()
        }
    }
    CheckRow {
        id: tick

        objectName: "tick " + row.appName
        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        width: 16
        text: ""
        focusPolicy: Qt.NoFocus
        checked: row.isTicked
        Accessible.ignored: true
        onToggled: row.folderImport.setTicked(row.index, checked)
    }
    IconImage {
        id: own

        anchors.left: tick.right
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        size: 28
        source: row.images.ofApp(row.appPath, row.images.revision)
    }
    Label {
        id: name

        anchors.left: own.right
        anchors.leftMargin: Style.gap
        anchors.verticalCenter: parent.verticalCenter
        width: Math.floor(row.width * 0.26)
        text: row.appName
        Accessible.ignored: true
    }
    IconImage {
        id: pictureImage

        anchors.left: name.right
        anchors.leftMargin: Style.gap
        anchors.verticalCenter: parent.verticalCenter
        size: 28
        opacity: row.isTicked ? 1 : 0.4
        source: row.images.ofHostFile(row.picture)
    }
    Label {
        anchors.left: pictureImage.right
        anchors.leftMargin: Style.gap
        anchors.right: kindLabel.left
        anchors.rightMargin: Style.gap
        anchors.verticalCenter: parent.verticalCenter
        elide: Text.ElideMiddle
        color: Style.secondary
        text: row.fileName
        Accessible.ignored: true
    }
    Label {
        id: kindLabel

        anchors.right: parent.right
        anchors.rightMargin: Style.margin
        anchors.verticalCenter: parent.verticalCenter
        width: 148
        horizontalAlignment: Text.AlignRight
        font.pixelSize: Style.smallText
        color: row.isDoubtful ? Style.warning : Style.secondary
        text: row.kind
        Accessible.ignored: true
    }
    Separator {
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.leftMargin: 40
        anchors.right: parent.right
    }
}
