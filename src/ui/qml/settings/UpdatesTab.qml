import QtQuick
import QtQuick.Controls.Basic as C
import Tavrik

// What the program may ask the network for, what it asked last, and how to keep it off the network for good.
Item {
    id: view

    required property WindowModel model
    readonly property UpdatesPage page: model.updates

    Flickable {
        id: scroller

        anchors.fill: parent
        clip: true
        contentHeight: content.height + 2 * Style.pageMargin
        boundsBehavior: Flickable.StopAtBounds
        C.ScrollBar.vertical: C.ScrollBar {
            policy: scroller.contentHeight > scroller.height ? C.ScrollBar.AsNeeded : C.ScrollBar.AlwaysOff
        }

        Column {
            id: content

            x: Style.pageMargin
            y: Style.pageMargin
            width: scroller.width - 2 * Style.pageMargin
            spacing: Style.margin

            Item {
                width: parent.width
                height: Math.max(check.height, version.height)

                Column {
                    id: version

                    anchors.left: parent.left
                    anchors.right: check.left
                    anchors.rightMargin: Style.margin
                    spacing: 2

                    Label {
                        width: parent.width
                        text: qsTr("Tavrik %1").arg(Qt.application.version)
                        font.pixelSize: Style.headingText
                        font.weight: Font.DemiBold
                        Accessible.role: Accessible.Heading
                    }
                    Label {
                        objectName: "updates-found"
                        width: parent.width
                        wrapMode: Text.Wrap
                        text: view.page.found
                        color: Style.secondary
                    }
                }
                PushButton {
                    id: check

                    objectName: "updates-check"
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    text: view.page.offer.isFound ? qsTr("Show Update…") : qsTr("Check Now")
                    enabled: !view.page.isOff && !view.page.isChecking && !view.model.isBlocked
                    onClicked: view.page.offer.isFound ? view.page.offer.show() : view.page.offer.checkQuietly()
                }
            }
            Separator { width: parent.width }
            ServiceSwitch {
                name: "updates-feed"
                width: parent.width
                text: qsTr("Look for newer versions, at most once a day")
                remark: view.page.updatesRemark
                isOn: view.page.checksForUpdates
                enabled: view.page.isKnown && !view.page.isOff
                onSwitched: isOn => view.page.checksForUpdates = isOn
            }
            ServiceSwitch {
                name: "updates-texts"
                width: parent.width
                text: qsTr("Fetch newer help texts and links, at most once a day")
                remark: view.page.textsRemark
                isOn: view.page.fetchesTexts
                enabled: view.page.isKnown && !view.page.isOff
                onSwitched: isOn => view.page.fetchesTexts = isOn
            }
            Separator { width: parent.width }
            ServiceSwitch {
                name: "updates-off"
                width: parent.width
                text: qsTr("Never use the network")
                remark: qsTr("Overrides both switches, and \u201cCheck for Updates\u201d in the menu.")
                isOn: view.page.isOff
                enabled: view.page.isKnown
                onSwitched: isOn => view.page.isOff = isOn
            }
            Remark {
                width: parent.width
                visible: text
                glyph: "warning"
                color: Style.warning
                text: view.page.problem
            }
            Separator { width: parent.width }
            PointRow {
                width: parent.width
                glyph: "lock"
                title: qsTr("What is sent")
                text: qsTr("A request for one file from %1: the file\u2019s name, the hour, which answer is kept already, and a signature that is the same for every copy of Tavrik. No name, no number of this Mac, nothing about your apps, not even the version that you use. The server sees your internet address, as with every page that you open. Nothing is installed by itself.").arg(view.page.addresses)
            }
            Row {
                anchors.left: parent.left
                spacing: Style.gap

                PushButton {
                    objectName: "updates-privacy"
                    text: qsTr("Privacy…")
                    hint: qsTr("Opens in your browser")
                    onClicked: view.model.words.open(InterfaceWords.Privacy)
                }
                PushButton {
                    objectName: "updates-releases"
                    text: qsTr("All Versions…")
                    hint: qsTr("Opens in your browser")
                    onClicked: view.model.words.open(InterfaceWords.ReleaseNotes)
                }
            }
        }
    }
}
