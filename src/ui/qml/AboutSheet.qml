import QtQuick
import Tavrik

Sheet {
    id: sheet

    required property WindowModel model

    name: qsTr("About Tavrik")
    contentWidth: 300
    contentHeight: column.implicitHeight

    Column {
        id: column

        width: parent.width
        spacing: 10

        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: qsTr("Tavrik")
            font.pixelSize: Style.titleText
            font.weight: Font.DemiBold
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: qsTr("Version %1").arg(Qt.application.version)
            color: Style.secondary
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            text: qsTr("Restyles Launchpad and the Dock, and never touches an app.")
        }
        PushButton {
            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTr("Close")
            focus: true
            onClicked: sheet.close()
        }
    }

    Connections {
        target: sheet.model
        function onAsked(request) {
            if (request === WindowModel.About)
                sheet.open()
        }
    }
}
