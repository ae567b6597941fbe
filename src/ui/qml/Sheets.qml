import QtQuick
import Tavrik

// What comes over the window.
Item {
    id: sheets

    required property WindowModel model

    WelcomeSheet { model: sheets.model }
    AboutSheet { model: sheets.model }
    ApplySheet { model: sheets.model }
    ProgressSheet { model: sheets.model }
    ConsentSheet { model: sheets.model }
    UpdateSheet {
        model: sheets.model
        onAboutToShow: { // asked for in the settings, it may
            sheets.Window.window.raise()
            sheets.Window.window.requestActivate()
        }
    }
    AlertSheet { alerts: sheets.model.alerts }
}
