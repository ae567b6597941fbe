import QtQuick
import Tavrik

// A theme in the library: what it looks like, how far it reaches, and its one action.
Item {
    id: card

    required property ThemesPage page
    required property Images images
    required property int index
    required property string themeID
    required property string name
    required property list<string> preview
    required property string coverage
    required property bool canApply
    required property bool isToBeRemoved
    property bool isCurrent: false
    readonly property bool isApplying: page.work.isRunning && page.work.themeID === themeID

    function open() {
        page.showTheme(themeID)
    }

    objectName: "theme " + name
    Accessible.role: Accessible.Button
    Accessible.name: isToBeRemoved ? qsTr("%1, to be removed").arg(name) : name
    Accessible.description: coverage
    Accessible.onPressAction: open()

    Rectangle {
        anchors.fill: parent
        anchors.margins: 8
        radius: Style.cornerLarge
        color: pointer.containsMouse ? Qt.tint(Style.content, Style.hover) : Style.content
        border.color: card.isCurrent ? Style.accent : Style.line
        border.width: card.isCurrent ? 2 : 1
    }
    MouseArea {
        id: pointer

        anchors.fill: parent
        anchors.margins: 8
        hoverEnabled: true
        onClicked: card.open()
    }
    Rectangle {
        id: stage

        x: 16
        y: 16
        width: parent.width - 32
        height: 146
        radius: Style.corner
        color: Style.sunken

        ScatteredPreview {
            anchors.fill: parent
            opacity: card.isToBeRemoved ? 0.3 : 1
            paths: card.page.look.showsGrid ? [] : card.preview
            images: card.images
            arrangement: card.index
        }
        GridPreview {
            anchors.fill: parent
            opacity: card.isToBeRemoved ? 0.3 : 1
            paths: card.page.look.showsGrid ? card.preview : []
            images: card.images
            showsFileNames: card.page.look.showsFileNames
        }
        Label {
            anchors.centerIn: parent
            visible: card.preview.length === 0 && !card.isToBeRemoved
            color: Style.faint
            text: qsTr("Empty")
        }
        Rectangle {
            anchors.centerIn: parent
            width: badge.implicitWidth + 24
            height: 28
            radius: 14
            color: Style.raised
            border.color: Style.border
            visible: card.isToBeRemoved

            Label {
                id: badge

                anchors.centerIn: parent
                text: qsTr("To be removed")
            }
        }
    }
    Column {
        anchors.left: stage.left
        anchors.leftMargin: 4
        anchors.right: action.left
        anchors.rightMargin: Style.gap
        anchors.verticalCenter: action.verticalCenter
        spacing: 1

        Label {
            width: parent.width
            text: card.name
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            text: card.coverage
            font.pixelSize: Style.smallText
            color: Style.secondary
            Accessible.ignored: true
        }
    }
    PushButton {
        id: action

        objectName: card.isToBeRemoved ? "undo " + card.name : "apply " + card.name
        anchors.right: stage.right
        anchors.top: stage.bottom
        anchors.topMargin: 14
        text: card.isToBeRemoved ? qsTr("Undo") : card.isApplying ? qsTr("Applying…") : qsTr("Apply Theme")
        enabled: card.isToBeRemoved || (card.canApply && !card.page.work.isRunning)
        onClicked: {
            if (card.isToBeRemoved)
                card.page.keep(card.themeID)
            else
                card.page.apply(card.themeID)
        }
    }
}
