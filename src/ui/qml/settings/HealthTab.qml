import QtQuick
import Tavrik

// What is not as it should be, and what mends it.
Item {
    id: view

    required property WindowModel model
    readonly property HealthPage page: model.health
    readonly property bool isIdle: !page.work.isBusy && !model.isBlocked

    Item {
        id: header

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: Style.pageMargin
        height: Math.max(Style.controlHeight, headline.implicitHeight)
        visible: view.page.isChecked && view.page.findings.count > 0

        Glyph {
            id: sign

            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            name: view.page.isGood ? "check" : "warning"
            size: 22
            color: view.page.isGood ? Style.good : Style.warning
        }
        Label {
            id: headline

            objectName: "health-headline"
            anchors.left: sign.right
            anchors.leftMargin: 10
            anchors.right: buttons.left
            anchors.rightMargin: Style.margin
            anchors.verticalCenter: parent.verticalCenter
            wrapMode: Text.Wrap
            text: view.page.headline
            font.pixelSize: Style.headingText
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        Row {
            id: buttons

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            spacing: Style.gap

            PushButton {
                objectName: "health-check"
                text: qsTr("Check Now")
                enabled: view.isIdle
                onClicked: view.page.check()
            }
            PushButton {
                objectName: "health-mend"
                text: qsTr("Mend…")
                kind: PushButton.Default
                visible: view.page.mending.length > 0
                enabled: view.isIdle
                onClicked: question.open()
            }
        }
    }
    Rectangle {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: header.bottom
        anchors.topMargin: 14
        anchors.leftMargin: Style.pageMargin
        anchors.rightMargin: Style.pageMargin
        height: Math.min(list.contentHeight + list.bottomMargin + 2, line.y - y - 10)
        radius: Style.corner
        color: Style.content
        border.color: Style.line
        visible: header.visible

        ListScroller {
            id: list

            objectName: "findings"
            anchors.fill: parent
            anchors.margins: 1
            reuseItems: false
            bottomMargin: 6
            activeFocusOnTab: true
            model: view.page.findings
            opacity: view.page.work.isBusy ? 0.5 : 1
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Findings")

            section.property: "group"
            section.delegate: Label {
                required property string section

                width: ListView.view.width
                leftPadding: 14
                rightPadding: 14
                topPadding: 12
                bottomPadding: 2
                text: section
                font.pixelSize: Style.smallText
                font.weight: Font.DemiBold
                color: Style.faint
            }
            delegate: FindingRow { width: ListView.view.width }
        }
    }
    EmptyState {
        anchors.centerIn: parent
        visible: !header.visible
        glyph: "heart"
        title: view.page.isChecked ? view.page.headline : qsTr("Is everything as it should be?")
        text: view.page.isChecked ? qsTr("Launchpad, the Dock, restyled apps, icons and backups were looked at.")
                                  : qsTr("Looks at Launchpad, the Dock, restyled apps, names, icons and backups. Checking changes nothing.")
    }
    PushButton {
        objectName: "health-first-check"
        anchors.horizontalCenter: parent.horizontalCenter
        y: parent.height / 2 + 80
        visible: !header.visible
        text: view.page.isChecked ? qsTr("Check Again") : qsTr("Check Now")
        enabled: view.isIdle
        onClicked: view.page.check()
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
        id: question

        title: qsTr("Mend what was found?")
        text: qsTr("A backup is taken before Launchpad or the Dock is changed. This is what is done:")
        points: view.page.mending
        confirmText: qsTr("Mend")
        destroys: false
        onConfirmed: view.page.mend()
    }
}
