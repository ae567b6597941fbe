import QtQuick
import QtTest
import Tavrik

// Sheets and panes: what Return, Esc and Tab do there.
Item {
    id: stage

    width: 700
    height: 500

    PushButton { id: behind; text: "Behind" }

    Component {
        id: confirmSheet

        ConfirmSheet {
            title: "Restore this backup?"
            text: "Launchpad and the Dock become as they were."
            confirmText: "Restore"
        }
    }
    Component {
        id: popover

        Popover {
            name: "Filter"
            parent: behind

            contentItem: CheckRow { text: "Only restyled"; focus: true }
        }
    }

    SignalSpy { id: confirmed; signalName: "confirmed" }

    TestCase {
        name: "Sheets"
        when: windowShown

        function init() { failOnWarning(/.?/) }

        function open(component, properties) {
            behind.forceActiveFocus()
            const sheet = createTemporaryObject(component, stage, properties ?? {})
            sheet.open()
            tryVerify(() => sheet.opened)
            return sheet
        }

        function buttons(sheet) {
            return ["confirm-cancel", "confirm-go"].map(name => findChild(sheet.contentItem, name))
        }

        function test_answer_data() {
            return [
                { tag: "what destroys is not confirmed by Return", destroys: true, key: Qt.Key_Return, count: 0 },
                { tag: "what does not is", destroys: false, key: Qt.Key_Return, count: 1 },
                { tag: "Esc never confirms", destroys: false, key: Qt.Key_Escape, count: 0 },
                { tag: "Tab and Space", destroys: true, key: Qt.Key_Tab, then: Qt.Key_Space, count: 1 },
            ]
        }

        function test_answer(row) {
            const sheet = open(confirmSheet, { destroys: row.destroys })
            confirmed.target = sheet
            confirmed.clear()
            keyClick(row.key)
            if (row.then)
                keyClick(row.then)
            tryVerify(() => !sheet.visible)
            compare(confirmed.count, row.count)
        }

        function test_focusStaysInside() {
            const sheet = open(confirmSheet)
            for (let i = 0; i < 6; ++i) {
                keyClick(Qt.Key_Tab)
                verify(!behind.activeFocus)
            }
            verify(buttons(sheet).some(button => button.activeFocus))
        }

        function test_mustBeAnswered() {
            const sheet = open(confirmSheet, { mustBeAnswered: true })
            keyClick(Qt.Key_Escape)
            mouseClick(stage, 5, 490)
            verify(sheet.opened)
        }

        function test_longTexts() {
            const much = "A sentence that is far longer than a sheet is wide, as in many languages. ".repeat(3)
            const sheet = open(confirmSheet, { title: much, text: much, points: [much, much, much, much, much] })
            const [cancel, go] = buttons(sheet)
            verify(cancel.mapToItem(stage, 0, cancel.height).y < stage.height)
            verify(!go.contentItem.truncated)
            verify(sheet.background.Accessible.name === much)
        }

        function test_mirrored() {
            const sheet = open(confirmSheet)
            sheet.contentItem.LayoutMirroring.enabled = true
            sheet.contentItem.LayoutMirroring.childrenInherit = true
            const [cancel, go] = buttons(sheet)
            verify(go.mapToItem(stage, 0, 0).x < cancel.mapToItem(stage, 0, 0).x)
            verify(go.mapToItem(sheet.contentItem, 0, 0).x < 10)
        }

        function test_popover_data() {
            return [
                { tag: "Esc", close: () => keyClick(Qt.Key_Escape) },
                { tag: "a click elsewhere", close: () => mouseClick(stage, 600, 400) },
                { tag: "its place goes", close: () => behind.visible = false },
            ]
        }

        function test_popover(row) {
            const pane = open(popover)
            verify(pane.y >= behind.height)
            verify(pane.contentItem.activeFocus)
            row.close()
            tryVerify(() => !pane.visible)
            behind.visible = true
        }
    }
}
