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
    AlertSheet { alerts: sheets.model.alerts }
}
