import QtQuick
import QtQuick.Controls.Basic as C
import Tavrik

// A question without the main window.
C.ApplicationWindow {
    id: window

    required property WindowAlerts alerts

    width: 480
    height: 260
    visible: alerts.isShown
    title: qsTr("Tavrik")
    color: Style.window
    onClosing: alerts.answer(alerts.buttons.length - 1)

    AlertSheet { alerts: window.alerts }
}
