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
            text: sheet.model.words.aboutSummary
        }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            topPadding: 6
            spacing: Style.gap

            PushButton {
                objectName: "about-website"
                text: qsTr("Website")
                hint: qsTr("Opens in your browser")
                onClicked: sheet.model.words.open(InterfaceWords.Home)
            }
            PushButton {
                text: qsTr("Close")
                focus: true
                onClicked: sheet.close()
            }
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
