import QtQuick
import Tavrik

Column {
    id: page

    required property ApplyModel apply
    signal done()

    spacing: 14

    Row {
        width: parent.width
        spacing: 12

        Glyph {
            id: sign

            name: page.apply.isClean ? "check" : "warning"
            size: 28
            color: page.apply.isClean ? Style.good : Style.warning
        }
        Label {
            width: parent.width - sign.width - parent.spacing
            height: sign.height
            text: page.apply.headline
            font.pixelSize: Style.titleText
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
    }
    ListScroller {
        width: parent.width
        height: Math.min(contentHeight, 260)
        spacing: 6
        model: page.apply.remarks
        Accessible.name: qsTr("Remarks")
        Accessible.role: Accessible.List

        delegate: Label {
            required property string modelData

            width: ListView.view.width
            wrapMode: Text.Wrap
            text: modelData
        }
    }
    Item {
        width: parent.width
        height: Style.controlHeight

        PushButton {
            objectName: "result-copy"
            anchors.left: parent.left
            text: qsTr("Copy Details")
            visible: !page.apply.isClean
            onClicked: page.apply.copyDetails()
        }
        PushButton {
            objectName: "result-done"
            anchors.right: parent.right
            text: qsTr("Done")
            kind: PushButton.Default
            focus: true
            onClicked: page.done()
        }
    }
}
