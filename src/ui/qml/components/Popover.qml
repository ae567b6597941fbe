import QtQuick
import QtQuick.Templates as T
import Tavrik

// A small pane below what opened it. A click elsewhere or Esc closes it.
T.Popup {
    id: popover

    required property string name
    readonly property bool isPlaceShown: parent ? parent.visible : false

    onIsPlaceShownChanged: {
        if (!isPlaceShown)
            close()
    }

    y: parent ? parent.height + 6 : 0
    padding: Style.margin
    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: contentHeight + topPadding + bottomPadding
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent

    background: Rectangle {
        radius: Style.cornerLarge
        color: Style.window
        border.color: Style.border
        Accessible.role: Accessible.Dialog
        Accessible.name: popover.name
    }
    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Style.quick }
    }
}
