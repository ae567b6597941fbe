pragma Singleton

import QtQuick

// The one place for colours, sizes and times. Sizes are points.
QtObject {
    property bool dark: false

    readonly property color window: dark ? "#1d1d20" : "#f5f5f7"
    readonly property color content: dark ? "#242427" : "#ffffff"
    readonly property color sidebar: dark ? "#2b2b2f" : "#ebebee"
    readonly property color raised: dark ? "#3b3b40" : "#ffffff"
    readonly property color sunken: dark ? "#19191b" : "#f0f0f3"
    readonly property color text: dark ? "#f3f3f5" : "#1d1d1f"
    readonly property color secondary: dark ? "#a3a3aa" : "#66666c"
    readonly property color faint: dark ? "#909097" : "#75757c"
    readonly property color line: dark ? "#3a3a3f" : "#e1e1e5"
    readonly property color border: dark ? "#4d4d53" : "#d0d0d6"
    readonly property color hover: dark ? "#12ffffff" : "#0a000000"
    readonly property color pressed: dark ? "#22ffffff" : "#16000000"
    readonly property color selection: dark ? "#3d4c8dff" : "#1f2f6fed"
    readonly property color accent: dark ? "#4c8dff" : "#2f6fed"
    readonly property color accentPressed: dark ? "#3b78e0" : "#2459c4"
    readonly property color textOnAccent: "#ffffff"
    readonly property color warning: dark ? "#ffb340" : "#a14a00"
    readonly property color danger: dark ? "#ff6961" : "#c9001a"
    readonly property color good: dark ? "#32d74b" : "#1f7a35"
    readonly property color shade: dark ? "#99000000" : "#4d000000"

    readonly property int smallText: 11
    readonly property int bodyText: 13
    readonly property int headingText: 15
    readonly property int titleText: 20

    readonly property int gap: 8
    readonly property int margin: 16
    readonly property int pageMargin: 20
    readonly property int cornerSmall: 5
    readonly property int corner: 8
    readonly property int cornerLarge: 12
    readonly property int controlHeight: 28
    readonly property int menuBarHeight: 26
    readonly property int toolbarHeight: 52
    readonly property int sidebarWidth: 212

    readonly property int quick: 120 // ms
    readonly property int calm: 220 // ms
}
