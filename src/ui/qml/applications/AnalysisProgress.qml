import QtQuick
import Tavrik

// How far the look at the icons' shapes has come; there while it is under way.
Column {
    id: progress

    required property ApplicationsPage page

    visible: page.isAnalysing
    topPadding: 6
    spacing: 6
    Accessible.role: Accessible.ProgressBar
    Accessible.name: label.text

    Label {
        id: label

        width: parent.width
        wrapMode: Text.Wrap
        font.pixelSize: Style.smallText
        color: Style.secondary
        text: qsTr("Looking at the shapes of icons: %1 %").arg(Math.round(100 * progress.page.analysisProgress))
    }
    Rectangle {
        width: parent.width
        height: 4
        radius: 2
        color: Style.line

        Rectangle {
            anchors.left: parent.left
            width: parent.width * progress.page.analysisProgress
            height: parent.height
            radius: 2
            color: Style.accent
        }
    }
}
