import QtQuick
import Tavrik

// The first start: what Tavrik does, what it never touches, and how to leave.
Sheet {
    id: sheet

    required property WindowModel model
    property bool isAsked: false

    objectName: "welcome"
    name: qsTr("Welcome to Tavrik")
    visible: isAsked || (model.isFirstStart && !model.isBlocked)
    contentWidth: 500
    contentHeight: column.implicitHeight
    onClosed: {
        isAsked = false
        if (!model.isBlocked) // then it comes again
            model.endFirstStart()
    }

    Column {
        id: column

        width: parent.width
        spacing: 18

        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: sheet.model.words.welcomeSummary
            wrapMode: Text.Wrap
            font.pixelSize: Style.titleText
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        PointRow {
            width: parent.width
            glyph: "apps"
            title: qsTr("Your Launchpad and Dock, as you like them")
            text: qsTr("Give apps other icons, one by one or by whole themes, and write their names in another alphabet.")
        }
        PointRow {
            width: parent.width
            glyph: "lock"
            title: qsTr("Your apps are never touched")
            text: qsTr("Each restyled app gets a small stand-in with its own icon. The app itself stays exactly as it is, and keeps updating.")
        }
        PointRow {
            width: parent.width
            glyph: "eye"
            title: qsTr("Nothing changes until you apply")
            text: qsTr("What you do is collected first, and you see it before it happens. Applying makes a backup, then restarts the Dock.")
        }
        PointRow {
            width: parent.width
            glyph: "leave"
            title: qsTr("Leave at any time")
            text: qsTr("The Help menu takes everything back: every icon, every name, every place. So does any backup.")
        }
        PushButton {
            objectName: "welcome-start"
            anchors.horizontalCenter: parent.horizontalCenter
            width: 160
            text: qsTr("Get Started")
            kind: PushButton.Default
            focus: true
            onClicked: sheet.close()
        }
    }

    Connections {
        target: sheet.model
        function onAsked(request) {
            if (request === WindowModel.Welcome)
                sheet.isAsked = true
        }
    }
}
