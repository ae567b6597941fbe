import QtQuick
import Tavrik

// How themes are shown.
Item {
    id: view

    required property PreferencesPage preferences
    readonly property ThemeLook look: preferences.themeLook

    Column {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 36
        width: Math.min(parent.width - 2 * Style.pageMargin, 420)
        spacing: 22

        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            text: qsTr("How the icons of a theme are laid out in the library")
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 24

            ThemePreviewChoice {
                name: "themes-scattered"
                text: qsTr("Scattered")
                isScattered: true
                isChosen: !view.look.showsGrid
                onChosen: view.look.showsGrid = false
            }
            ThemePreviewChoice {
                name: "themes-grid"
                text: qsTr("In a grid")
                isChosen: view.look.showsGrid
                onChosen: view.look.showsGrid = true
            }
        }
        CheckRow {
            id: names

            objectName: "themes-names"
            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTr("Show the file names below the icons")
            checked: view.look.showsFileNames
            onClicked: {
                view.look.showsFileNames = checked
                checked = Qt.binding(() => view.look.showsFileNames)
            }
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            visible: text
            text: view.look.problem
            color: Style.warning
        }
    }
}
