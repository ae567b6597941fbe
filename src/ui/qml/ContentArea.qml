import QtQuick
import Tavrik

// The view of the current place, or the preview over it. Views are read and made when they are first shown, and kept.
Rectangle {
    id: area

    required property WindowModel model

    color: Style.content

    component Place: Loader {
        property string view
        property var properties: ({ model: area.model })
        property bool isCurrent: false

        function show() {
            if (isCurrent && !item)
                setSource(view, properties)
        }

        anchors.fill: parent
        visible: isCurrent
        onIsCurrentChanged: show()
        Component.onCompleted: show()
    }

    Place {
        isCurrent: !area.model.showsPreview && area.model.place === WindowModel.UserApps
        view: "applications/ApplicationsView.qml"
        properties: ({ model: area.model, isSystemList: false })
    }
    Place {
        isCurrent: !area.model.showsPreview && area.model.place === WindowModel.SystemApps
        view: "applications/ApplicationsView.qml"
        properties: ({ model: area.model, isSystemList: true })
    }
    Place {
        isCurrent: !area.model.showsPreview && area.model.place === WindowModel.Themes
        view: "themes/ThemesView.qml"
    }
    Place {
        isCurrent: !area.model.showsPreview && area.model.place === WindowModel.Fonts
        view: "fonts/FontsView.qml"
    }
    Place {
        isCurrent: area.model.showsPreview
        view: "preview/PreviewView.qml"
    }
}
