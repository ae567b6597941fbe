import QtQuick
import QtQuick.Dialogs
import Tavrik

// Asks for picture files. The dialog is made when it is first needed.
Item {
    id: picker

    required property string patterns
    property string bundleID
    signal picked(string bundleID, var files)

    function ask(forApp) {
        bundleID = forApp
        loader.active = true
        loader.item.open()
    }

    Loader {
        id: loader

        active: false
        sourceComponent: FileDialog {
            objectName: "dialog-pictures"
            title: qsTr("Choose Pictures")
            fileMode: FileDialog.OpenFiles
            nameFilters: [
                qsTr("Pictures (%1)").arg(picker.patterns),
                qsTr("All files (*)")
            ]
            onAccepted: picker.picked(picker.bundleID, selectedFiles)
        }
    }
}
