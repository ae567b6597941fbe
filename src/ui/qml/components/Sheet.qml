import QtQuick
import QtQuick.Templates as T
import Tavrik

// A sheet over the window. Esc closes it, unless it must be answered.
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
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Style.quick }
    }
}
