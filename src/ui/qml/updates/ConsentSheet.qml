import QtQuick
import Tavrik

// Asked once, at the second start: whether the program may use the network by itself. Neither answer is made easier
// than the other, nor given by a key that was meant for what was there before; Esc is a no.
Sheet {
    id: sheet

    required property WindowModel model
    readonly property UpdatesPage page: model.updates

    objectName: "consent"
    name: title.text
    visible: page.isQuestionShown
    contentWidth: 500
    contentHeight: column.implicitHeight
    onAboutToShow: column.forceActiveFocus()
    onClosed: if (page.isQuestionShown) page.answerQuestion(false)

    Column {
        id: column

        width: parent.width
        spacing: 18
        Keys.onTabPressed: no.forceActiveFocus(Qt.TabFocusReason) // till then Return answers nothing

        Label {
            id: title

            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            text: qsTr("May Tavrik look for updates by itself?")
            font.pixelSize: Style.titleText
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        PointRow {
            width: parent.width
            glyph: "clock"
            title: qsTr("Two small files, at most once a day")
            text: qsTr("One says whether there is a newer version. The other brings better wordings of help texts and links.")
        }
        PointRow {
            width: parent.width
            glyph: "lock"
            title: qsTr("Nothing about you is sent")
            text: qsTr("No name, no number of this Mac, nothing about your apps, not even the version that you use. As with every page that you open, the server sees your internet address.")
        }
        PointRow {
            width: parent.width
            glyph: "globe"
            title: qsTr("Only one address is asked")
            text: qsTr("%1, over a secure connection. An answer that is not signed by the makers of Tavrik is thrown away.").arg(sheet.page.addresses)
        }
        PointRow {
            width: parent.width
            glyph: "eye"
            title: qsTr("Nothing is installed by itself")
            text: qsTr("You decide about every version. You can change your answer at any time in the settings, below Updates.")
        }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: Style.gap

            PushButton {
                id: no

                objectName: "consent-no"
                width: Math.max(140, implicitWidth)
                text: qsTr("Don\u2019t Allow")
                onClicked: sheet.page.answerQuestion(false)
                KeyNavigation.right: yes
            }
            PushButton {
                id: yes

                objectName: "consent-yes"
                width: Math.max(140, implicitWidth)
                text: qsTr("Allow")
                onClicked: sheet.page.answerQuestion(true)
            }
        }
    }
}
