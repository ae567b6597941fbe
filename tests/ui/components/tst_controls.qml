import QtQuick
import QtTest
import Tavrik

// Every control by the keyboard, disabled, mirrored, and with longer texts.
Item {
    id: stage

    width: 600
    height: 400

    component Watched: QtObject { property int count: 0 }

    Component { id: pushButton; PushButton { text: "Apply to all apps" } }
    Component { id: glyphButton; GlyphButton { name: "Import"; glyph: "import" } }
    Component { id: checkRow; CheckRow { text: "Show file names" } }
    Component { id: radioRow; RadioRow { text: "In a grid" } }
    Component { id: sidebarItem; SidebarItem { text: "Themes"; glyph: "plus"; count: "12"; width: 160 } }
    Component { id: searchField; SearchField { name: "Search apps"; width: 200 } }
    Component { id: textBox; TextBox { name: "Name"; placeholderText: "Name of the theme"; width: 120 } }
    Component {
        id: segments

        SegmentedControl {
            name: "Style"
            segments: [{ text: "One", value: 1 }, { text: "Two", value: 2 }, { text: "Three", value: 3 }]
            value: 2
            onChosen: chosen => value = chosen
        }
    }
    Component { id: emptyState; EmptyState { title: "Nothing"; text: "Add one."; actionText: "Add" } }

    SignalSpy { id: clicks; signalName: "clicked" }

    TestCase {
        name: "Controls"
        when: windowShown

        function init() { failOnWarning(/.?/) }

        function make(component, properties) {
            const control = createTemporaryObject(component, stage, properties ?? {})
            verify(control)
            return control
        }

        function labelOf(control) {
            return control.contentItem.truncated === undefined ? control.contentItem.children[1] : control.contentItem
        }

        function test_press_data() {
            return [
                { tag: "PushButton", control: pushButton, keys: [Qt.Key_Space, Qt.Key_Return, Qt.Key_Enter] },
                { tag: "GlyphButton", control: glyphButton, keys: [Qt.Key_Space, Qt.Key_Return, Qt.Key_Enter] },
                { tag: "CheckRow", control: checkRow, keys: [Qt.Key_Space] },
                { tag: "RadioRow", control: radioRow, keys: [Qt.Key_Space] },
                { tag: "SidebarItem", control: sidebarItem, keys: [Qt.Key_Space, Qt.Key_Return, Qt.Key_Enter] },
            ]
        }

        function test_press(row) {
            const control = make(row.control)
            verify(control.Accessible.name)
            clicks.target = control
            clicks.clear()
            control.forceActiveFocus()
            row.keys.forEach(key => keyClick(key))
            mouseClick(control)
            compare(clicks.count, row.keys.length + 1)
            control.enabled = false
            row.keys.forEach(key => keyClick(key))
            mouseClick(control)
            compare(clicks.count, row.keys.length + 1)
            verify(control.opacity < 1)
        }

        function test_longerText_data() {
            return [
                { tag: "PushButton", control: pushButton },
                { tag: "CheckRow", control: checkRow },
                { tag: "RadioRow", control: radioRow },
                { tag: "SidebarItem", control: sidebarItem, isNarrow: true },
            ]
        }

        // Grows with its text; where it may not, the text is cut with a sign and not painted over the edge.
        function test_longerText(row) {
            const control = make(row.control)
            control.text += "~".repeat(Math.ceil(control.text.length * 0.4))
            verify(!labelOf(control).truncated)
            control.text += " and something more that is very long indeed"
            compare(labelOf(control).truncated, row.isNarrow === true)
            control.width = 60
            verify(labelOf(control).truncated)
            const edge = labelOf(control).mapToItem(control, labelOf(control).width, 0).x
            verify(edge <= 60, edge)
        }

        function test_mirroredIndicator_data() {
            return [{ tag: "CheckRow", control: checkRow }, { tag: "RadioRow", control: radioRow }]
        }

        function test_mirroredIndicator(row) {
            const control = make(row.control, { width: 200, "LayoutMirroring.enabled": true })
            compare(control.indicator.x + control.indicator.width, 200)
            verify(control.contentItem.rightPadding > control.indicator.width)
            compare(control.contentItem.leftPadding, 0)
        }

        function test_segments_data() {
            return [
                { tag: "Tab and Space", keys: [Qt.Key_Tab, Qt.Key_Space], value: 3 },
                { tag: "right", keys: [Qt.Key_Right], value: 3 },
                { tag: "not past the end", keys: [Qt.Key_Right, Qt.Key_Right], value: 3 },
                { tag: "left and back", keys: [Qt.Key_Left, Qt.Key_Right], value: 2 },
                { tag: "mirrored right", keys: [Qt.Key_Right], value: 1, mirrored: true },
            ]
        }

        function test_segments(row) {
            const control = make(segments, { "LayoutMirroring.enabled": row.mirrored === true,
                                             "LayoutMirroring.childrenInherit": true })
            mouseClick(control)
            compare(control.value, 2)
            row.keys.forEach(key => keyClick(key))
            compare(control.value, row.value)
        }

        function test_search_data() {
            return [{ tag: "plain" }, { tag: "mirrored", mirrored: true }]
        }

        // Sign, text and the button that clears it stand beside each other.
        function test_search(row) {
            const field = make(searchField, { "LayoutMirroring.enabled": row.mirrored === true,
                                              "LayoutMirroring.childrenInherit": true })
            field.forceActiveFocus()
            keyClick("a")
            compare(field.text, "a")
            const sign = findChild(field, "search-sign")
            const clear = findChild(field, "search-clear")
            const first = row.mirrored ? clear : sign
            const last = row.mirrored ? sign : clear
            verify(first.x + first.width <= field.leftPadding)
            verify(last.x >= field.width - field.rightPadding)
            mouseClick(clear)
            compare(field.text, "")
            keyClick("b")
            keyClick(Qt.Key_Escape)
            compare(field.text, "")
        }

        function test_placeholder() {
            const box = make(textBox)
            compare(box.Accessible.name, "Name")
            const label = Array.from(box.children).find(child => child.text === box.placeholderText)
            verify(label.visible && label.truncated)
            verify(label.x + label.width <= box.width - box.rightPadding)
            box.text = "Ocean"
            verify(!label.visible)
        }

        function test_emptyState() {
            const state = make(emptyState, { width: 120 })
            state.text = "A long explanation that needs several lines to be read as a whole."
            Array.from(state.children).filter(child => child.truncated !== undefined).forEach(child => verify(!child.truncated))
            verify(state.implicitHeight > 80)
        }
    }
}
