import QtQuick
import Tavrik

// Whether there is a newer version, and what is in it. Installs nothing: a download is the browser's.
Sheet {
    id: sheet

    required property WindowModel model
    readonly property UpdateOffer offer: model.updates.offer
    readonly property bool isOffered: offer.stage === UpdateOffer.Available

    objectName: "update-sheet"
    name: qsTr("Updates")
    visible: offer.isShown
    contentWidth: 460
    contentHeight: column.implicitHeight
    onClosed: offer.close()
    onAboutToShow: buttons.focusMain()

    Column {
        id: column

        width: parent.width
        spacing: Style.margin

        Row {
            width: parent.width
            spacing: 14

            Glyph {
                id: sign

                name: sheet.offer.stage === UpdateOffer.Newest ? "check"
                    : sheet.offer.stage === UpdateOffer.Failed ? "warning"
                    : sheet.isOffered ? "download" : "globe"
                size: 32
                color: sheet.offer.stage === UpdateOffer.Newest ? Style.good
                     : sheet.offer.stage === UpdateOffer.Failed ? Style.warning
                     : sheet.isOffered ? Style.accent : Style.secondary
            }
            Column {
                width: parent.width - sign.width - parent.spacing
                spacing: 6

                Label {
                    objectName: "update-headline"
                    width: parent.width
                    wrapMode: Text.Wrap
                    text: sheet.offer.headline
                    font.pixelSize: Style.headingText
                    font.weight: Font.DemiBold
                    Accessible.role: Accessible.Heading
                }
                Label {
                    objectName: "update-text"
                    width: parent.width
                    wrapMode: Text.Wrap
                    visible: text
                    text: sheet.offer.text
                    color: Style.secondary
                }
            }
        }
        UpdateNotes {
            width: parent.width
            visible: text
            text: sheet.offer.notes
        }
        Label {
            width: parent.width
            wrapMode: Text.Wrap
            visible: text
            text: sheet.offer.advice
            font.pixelSize: Style.smallText
            color: Style.secondary
        }
        UpdateButtons {
            id: buttons

            width: parent.width
            offer: sheet.offer
            onSettingsAsked: {
                sheet.close()
                sheet.model.preferences.tab = PreferencesPage.Updates
                sheet.model.openSettings()
            }
            onCloseAsked: sheet.close()
        }
    }
}
