import QtQuick
import Tavrik

// The view of the current place, or the preview over it. Views are made when they are first shown, and kept.
Rectangle {
    id: area

    required property WindowModel model

    color: Style.content

    component Place: Loader {
        property bool isCurrent: false
        property bool wasShown: false

        anchors.fill: parent
        active: isCurrent || wasShown
        visible: isCurrent
        onIsCurrentChanged: wasShown = wasShown || isCurrent
    }

    Place {
        isCurrent: !area.model.showsPreview && area.model.place === WindowModel.UserApps
        sourceComponent: ApplicationsView { model: area.model; isSystemList: false }
    }
    Place {
        isCurrent: !area.model.showsPreview && area.model.place === WindowModel.SystemApps
        sourceComponent: ApplicationsView { model: area.model; isSystemList: true }
    }
    Place {
        isCurrent: !area.model.showsPreview && area.model.place === WindowModel.Themes
        sourceComponent: ThemesView { model: area.model }
    }
    Place {
        isCurrent: !area.model.showsPreview && area.model.place === WindowModel.Fonts
        sourceComponent: FontsView { model: area.model }
    }
    Place {
        isCurrent: area.model.showsPreview
        sourceComponent: PreviewView { model: area.model }
    }
}
