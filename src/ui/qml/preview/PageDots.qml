import QtQuick
import QtQuick.Templates as T
import Tavrik

// Which page is shown, and the way to another one.
Rectangle {
    id: dots

    property int count: 0
    property int current: 0
    property bool hasCursor: false ///< the arrow keys turn the pages
    signal chosen(int page)

    implicitWidth: row.width + 12
    implicitHeight: 20
    visible: count > 1
    radius: height / 2
    color: "transparent"
    border.width: hasCursor ? 1 : 0
    border.color: Style.accent

    Row {
        id: row

        anchors.centerIn: parent

        Repeater {
            model: dots.count

            T.AbstractButton {
                id: dot

                required property int index

                objectName: "pageDot" + index
                implicitWidth: 18
                implicitHeight: dots.implicitHeight
                focusPolicy: Qt.NoFocus
                Accessible.role: Accessible.PageTab
                Accessible.name: qsTr("Page %1").arg(index + 1)
                Accessible.checked: index === dots.current
                onClicked: dots.chosen(index)

                background: Item {
                    Rectangle {
                        anchors.centerIn: parent
                        width: 8
                        height: 8
                        radius: 4
                        color: Style.dark ? "#f4f6fb" : "#1f2738"
                        opacity: dot.index === dots.current ? 0.9 : 0.28
                    }
                }
            }
        }
    }
}
