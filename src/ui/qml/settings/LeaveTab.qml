import QtQuick
import QtQuick.Controls.Basic as C
import Tavrik

// The way out, in two steps: everything taken back from the Mac, then what Tavrik keeps for itself.
Item {
    id: view

    required property WindowModel model
    readonly property LeavingPage page: model.leaving
    readonly property bool isIdle: !page.work.isBusy && !model.isBlocked
    readonly property bool isClean: page.stage === LeavingPage.Nothing || page.stage === LeavingPage.TakenBack

    Component.onCompleted: page.refresh()

    component Heading: Label {
        width: content.width
        wrapMode: Text.Wrap
        font.pixelSize: Style.headingText
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
    }
    component Explanation: Label {
        width: content.width
        wrapMode: Text.Wrap
        color: Style.secondary
    }

    Flickable {
        id: scroller

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: line.top
        anchors.bottomMargin: 8
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
            spacing: 12

            Heading {
                objectName: "leave-headline"
                text: view.page.stage === LeavingPage.TakenBack ? qsTr("Everything is taken back")
                    : view.page.stage === LeavingPage.Unfinished ? qsTr("Something is left")
                    : view.page.stage === LeavingPage.Nothing ? qsTr("There is nothing to take back")
                    : qsTr("Take everything back")
            }
            Explanation {
                text: view.page.stage === LeavingPage.TakenBack ? qsTr("Launchpad and the Dock were read back: nothing of Tavrik\u2019s is left in them.")
                    : view.page.stage === LeavingPage.Unfinished ? qsTr("Try once more. Should that not help, the backup puts Launchpad and the Dock back.")
                    : view.page.stage === LeavingPage.Nothing ? qsTr("Launchpad and the Dock are as they would be without Tavrik.")
                    : qsTr("Every app gets its own icon, name and place back. Your icons, themes and backups stay.")
            }
            FactList {
                width: parent.width
                visible: view.page.stage === LeavingPage.Present
                facts: view.page.figures
            }
            Repeater {
                model: view.page.traces

                Remark {
                    required property string modelData

                    width: content.width
                    visible: view.page.stage === LeavingPage.Unfinished
                    glyph: "warning"
                    color: Style.warning
                    text: modelData
                }
            }
            Repeater {
                model: view.page.done

                Remark {
                    required property string modelData

                    width: content.width
                    glyph: "check"
                    color: Style.good
                    text: modelData
                }
            }
            PushButton {
                objectName: "leave-take-back"
                visible: view.page.stage === LeavingPage.Present || view.page.stage === LeavingPage.Unfinished
                text: view.page.stage === LeavingPage.Unfinished ? qsTr("Try Once More…") : qsTr("Take Everything Back…")
                enabled: view.isIdle
                onClicked: takingBack.open()
            }
            Item { width: 1; height: 6 }
            Separator { width: parent.width }
            Item { width: 1; height: 6 }
            Heading { text: qsTr("What Tavrik keeps for itself") }
            Explanation {
                text: view.isClean ? qsTr("It is of no use without Tavrik, and takes %1.").arg(view.page.size)
                                   : qsTr("It takes %1. It can be deleted once everything is taken back.").arg(view.page.size)
            }
            FactList {
                width: parent.width
                facts: view.page.belongings
            }
            PushButton {
                objectName: "leave-delete"
                visible: view.isClean
                text: qsTr("Delete It and Quit…")
                kind: PushButton.Danger
                enabled: view.isIdle
                onClicked: deleting.open()
            }
        }
    }
    WorkLine {
        id: line

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.leftMargin: Style.pageMargin
        anchors.rightMargin: Style.pageMargin
        anchors.bottomMargin: 14
        work: view.page.work
    }

    ConfirmSheet {
        id: takingBack

        title: qsTr("Take everything back?")
        text: qsTr("A backup is taken first. Then every app gets its own look and name back in Launchpad and the Dock, the stand-ins are removed, and the Dock restarts. Icons, themes, backups and what is staged stay.")
        confirmText: qsTr("Take Everything Back")
        onConfirmed: view.page.takeBack()
    }
    ConfirmSheet {
        id: deleting

        title: qsTr("Delete what Tavrik keeps, %1?").arg(view.page.size)
        text: qsTr("The icons of all apps, all themes, all backups with the Original State, what is staged, and the settings go for good. Nothing brings them back. Tavrik then quits.")
        confirmText: qsTr("Delete for Good and Quit")
        onConfirmed: view.page.deleteAll()
    }
    Connections {
        target: view.page
        function onLeft() {
            view.model.quitAsked()
        }
    }
}
