import QtQuick
import QtQuick.Templates as T
import Tavrik

// A sheet over the window. Esc closes it, unless it must be answered. It leaves at once: while it faded it would still
// take the clicks that are meant for the window, and an answer to its leaving would come late.
T.Popup {
    id: sheet

    required property string name
    property bool mustBeAnswered: false

    parent: T.Overlay.overlay
    x: Math.round((parent.width - width) / 2)
    y: Math.min(Style.toolbarHeight + 12, Math.max(12, (parent.height - height) / 2))
    modal: true
    focus: true
    padding: Style.pageMargin
    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: contentHeight + topPadding + bottomPadding
    closePolicy: mustBeAnswered ? T.Popup.NoAutoClose : T.Popup.CloseOnEscape

    T.Overlay.modal: Rectangle { color: Style.shade }

    background: Rectangle {
        radius: Style.cornerLarge
        color: Style.window
        border.color: Style.border
        Accessible.role: Accessible.Dialog
        Accessible.name: sheet.name
    }
    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Style.quick }
    }
}
