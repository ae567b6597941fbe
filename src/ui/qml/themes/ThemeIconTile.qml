import QtQuick
import Tavrik

// What a theme has for one application. A click hides or shows it; in edit mode it can be deleted and its file
// renamed. A picture can be let go on it.
Item {
    id: tile

    required property OneTheme theme
    required property Images images
    required property PictureDrop drop
    required property string bundleID
    required property string name
    required property string appPath
    required property string iconPath
    required property string fileName
    required property int iconState
    required property string remark
    required property bool isToBeHidden
    required property bool isToBeRemoved
    property bool showsFileNames: false
    property bool isBusy: false
    property bool isCurrent: false
    readonly property bool isPale: iconState !== ThemeIconsModel.Covered || isToBeRemoved
    readonly property bool canToggle: iconPath !== "" && !isToBeRemoved && !theme.isToBeRemoved

    signal clicked()

    function act() {
        if (isToBeRemoved)
            theme.keep(bundleID)
        else
            theme.toggle(bundleID)
    }
    function toggleRemoval() {
        if (isToBeRemoved)
            theme.keep(bundleID)
        else if (iconPath)
            theme.remove(bundleID)
    }

    objectName: "icon " + name
    Accessible.role: Accessible.CheckBox
    Accessible.name: name
    Accessible.description: remark
    Accessible.checkable: canToggle
    Accessible.checked: iconState === ThemeIconsModel.Covered
    Accessible.onPressAction: act()

    Rectangle {
        anchors.fill: parent
        anchors.margins: 3
        radius: Style.corner
        color: pointer.pressed ? Style.pressed : pointer.containsMouse && tile.canToggle ? Style.hover : "transparent"
        border.color: Style.accent
        border.width: tile.isCurrent || drops.isTarget ? 2 : 0
    }
    MouseArea {
        id: pointer

        anchors.fill: parent
        anchors.margins: 3
        hoverEnabled: true
        onClicked: {
            tile.GridView.view.currentIndex = tile.GridView.view.indexAt(tile.x + 1, tile.y + 1)
            tile.GridView.view.forceActiveFocus(Qt.MouseFocusReason)
            tile.clicked()
            tile.act()
        }
    }
    IconImage {
        id: icon

        anchors.horizontalCenter: parent.horizontalCenter
        y: 12
        size: 64
        visible: !preview.visible
        opacity: tile.iconPath === "" ? 0.28 : tile.isPale ? 0.4 : 1
        source: tile.iconPath ? tile.images.ofFile(tile.iconPath, tile.images.revision)
                              : tile.images.ofApp(tile.appPath, tile.images.revision)
    }
    DroppedPicture {
        id: preview

        objectName: "themeDropPreview"
        anchors.fill: icon
        visible: drops.isTarget && tile.drop.hasPicture
        drop: drops.isTarget ? tile.drop : null
    }
    Rectangle {
        anchors.right: icon.right
        anchors.rightMargin: -6
        anchors.bottom: icon.bottom
        anchors.bottomMargin: -4
        width: 22
        height: 22
        radius: 11
        color: Style.raised
        border.color: Style.border
        visible: tile.isToBeRemoved || tile.iconState === ThemeIconsModel.Hidden

        Glyph {
            anchors.centerIn: parent
            size: 13
            name: tile.isToBeRemoved ? "trash" : "eye-off"
            color: Style.text
        }
    }
    Column {
        anchors.top: icon.bottom
        anchors.topMargin: 8
        x: 6
        width: parent.width - 12
        spacing: 1

        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: tile.name
            color: tile.isPale ? Style.secondary : Style.text
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            visible: tile.showsFileNames && !tile.theme.isEditing && text
            elide: Text.ElideLeft
            font.pixelSize: Style.smallText
            color: Style.faint
            text: tile.fileName
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            visible: text
            font.pixelSize: Style.smallText
            color: tile.isToBeRemoved || tile.isToBeHidden ? Style.warning : Style.secondary
            text: tile.remark
            Accessible.ignored: true
        }
        TextBox {
            objectName: "rename " + tile.name
            width: parent.width
            implicitHeight: 24
            visible: tile.theme.isEditing && tile.iconPath !== "" && !tile.isToBeRemoved
            name: qsTr("Bundle identifier that the file of %1 is named after").arg(tile.name)
            font.pixelSize: Style.smallText
            text: tile.bundleID
            onTextChanged: if (!activeFocus) cursorPosition = 0
            enabled: !tile.isBusy
            onEditingFinished: if (text !== tile.bundleID) tile.theme.renameIcon(tile.bundleID, text)
            Keys.onEscapePressed: {
                text = tile.bundleID
                tile.GridView.view.forceActiveFocus()
            }
        }
    }
    GlyphButton {
        objectName: (tile.isToBeRemoved ? "keep " : "delete ") + tile.name
        anchors.left: parent.left
        anchors.leftMargin: 6
        y: 6
        width: 26
        height: 26
        visible: tile.theme.isEditing && tile.iconPath !== ""
        focusPolicy: Qt.NoFocus
        name: tile.isToBeRemoved ? qsTr("Keep the Icon of %1").arg(tile.name) : qsTr("Delete the Icon of %1").arg(tile.name)
        glyph: tile.isToBeRemoved ? "undo" : "trash"
        glyphSize: 14
        onClicked: tile.toggleRemoval()
    }
    PictureDropArea {
        id: drops

        anchors.fill: parent
        enabled: !tile.isBusy && !tile.theme.isToBeRemoved
        drop: tile.drop
        takesFilesAlone: true
        onFilesDropped: files => {
            tile.drop.forget()
            tile.theme.drop(files, tile.bundleID)
        }
    }
}
