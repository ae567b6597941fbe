#pragma once

#include "platform/NotificationCenter.h"
#include "ui/models/ApplicationsPage.h"
#include "ui/models/ApplyModel.h"
#include "ui/models/BackupsPage.h"
#include "ui/models/EditActions.h"
#include "ui/models/FontsPage.h"
#include "ui/models/HealthPage.h"
#include "ui/models/Images.h"
#include "ui/models/InterfaceWords.h"
#include "ui/models/LeavingPage.h"
#include "ui/models/Menus.h"
#include "ui/models/Notices.h"
#include "ui/models/PreferencesPage.h"
#include "ui/models/PreviewModel.h"
#include "ui/models/PrivacyNote.h"
#include "ui/models/ThemesPage.h"
#include "ui/models/UiServices.h"
#include "ui/models/UpdatesPage.h"
#include "ui/models/WindowAlerts.h"

#include <QGuiApplication>
#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace tavrik {

/// Everything that the windows show, by place; and what belongs to no place: what is staged, whether the
/// interface is blocked, and the actions of the menus. The root of all views. Main thread.
class WindowModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(tavrik::ApplicationsPage* applications READ applications CONSTANT)
    Q_PROPERTY(tavrik::ThemesPage* themes READ themes CONSTANT)
    Q_PROPERTY(tavrik::FontsPage* fonts READ fonts CONSTANT)
    Q_PROPERTY(tavrik::PreviewModel* preview READ preview CONSTANT)
    Q_PROPERTY(tavrik::ApplyModel* apply READ apply CONSTANT)
    Q_PROPERTY(tavrik::EditActions* edits READ edits CONSTANT)
    Q_PROPERTY(tavrik::BackupsPage* backups READ backups CONSTANT)
    Q_PROPERTY(tavrik::HealthPage* health READ health CONSTANT)
    Q_PROPERTY(tavrik::LeavingPage* leaving READ leaving CONSTANT)
    Q_PROPERTY(tavrik::PreferencesPage* preferences READ preferences CONSTANT)
    Q_PROPERTY(tavrik::UpdatesPage* updates READ updates CONSTANT)
    Q_PROPERTY(tavrik::InterfaceWords* words READ words CONSTANT)
    Q_PROPERTY(tavrik::PrivacyNote* privacy READ privacy CONSTANT)
    Q_PROPERTY(tavrik::WindowAlerts* alerts READ alerts CONSTANT)
    Q_PROPERTY(tavrik::Images* images READ images CONSTANT)
    Q_PROPERTY(tavrik::Notices* notices READ notices CONSTANT)
    Q_PROPERTY(tavrik::Menus* menus READ menus CONSTANT)

    Q_PROPERTY(Place place READ place WRITE setPlace NOTIFY placeChanged)
    Q_PROPERTY(bool showsPreview READ showsPreview WRITE setShowsPreview NOTIFY showsPreviewChanged)
    /// A long operation owns the interface, or the question about unapplied changes is not settled yet.
    Q_PROPERTY(bool isBlocked READ isBlocked NOTIFY stateChanged)
    /// Applications, theme icons, themes and titles with something staged.
    Q_PROPERTY(int stagedCount READ stagedCount NOTIFY stateChanged)
    Q_PROPERTY(bool canApply READ canApply NOTIFY stateChanged)
    Q_PROPERTY(bool isDark READ isDark NOTIFY isDarkChanged)
    Q_PROPERTY(bool isRightToLeft READ isRightToLeft CONSTANT)

public:
    enum class Place { UserApps, SystemApps, Themes, Fonts };
    Q_ENUM(Place)

    /// What the menus ask of the views.
    enum class Request {
        About,
        AddIcons, ///< to the current row
        NewTheme,
        ImportTheme,
        ImportFolder,
        Find,
        Welcome,
        Health,
        Leave,
        CloseWindow,
        Minimize,
        Zoom,
    };
    Q_ENUM(Request)

    WindowModel(const UiServices& with, WindowAlerts& alerts);

    ApplicationsPage* applications() { return &m_applications; }

    ThemesPage* themes() { return &m_themes; }

    FontsPage* fonts() { return &m_fonts; }

    PreviewModel* preview() { return &m_preview; }

    ApplyModel* apply() { return &m_apply; }

    EditActions* edits() { return &m_edits; }

    BackupsPage* backups() { return &m_backups; }

    HealthPage* health() { return &m_health; }

    LeavingPage* leaving() { return &m_leaving; }

    PreferencesPage* preferences() { return &m_preferences; }

    UpdatesPage* updates() { return &m_updates; }

    InterfaceWords* words() { return &m_words; }

    PrivacyNote* privacy() { return &m_privacy; }

    WindowAlerts* alerts() { return &m_alerts; }

    Images* images() { return &m_with.images; }

    Notices* notices() { return &m_with.notices; }

    Menus* menus() { return &m_menus; }

    Place place() const { return m_place; }

    void setPlace(Place place);

    bool showsPreview() const { return m_showsPreview; }

    void setShowsPreview(bool shows);
    bool isBlocked() const;
    int stagedCount() const;
    bool canApply() const;
    bool isDark() const;

    bool isRightToLeft() const { return QGuiApplication::isRightToLeft(); }

    /// Goes to the place where the request is met, and passes it on to its view.
    void ask(Request request);
    /// To a place, out of the preview.
    Q_INVOKABLE void goTo(tavrik::WindowModel::Place place);
    /// Whether the person is to be told what the program does.
    Q_PROPERTY(bool isFirstStart READ isFirstStart NOTIFY isFirstStartChanged)

    bool isFirstStart() const { return m_isFirstStart; }

    Q_INVOKABLE void endFirstStart();

    /// Writes what is applied once more, and restarts the Dock.
    Q_INVOKABLE void refresh();
    Q_INVOKABLE void openSettings();

Q_SIGNALS:
    /// For the views, which are there when this comes.
    void asked(tavrik::WindowModel::Request request);
    void isFirstStartChanged();
    /// The person wants to quit.
    void quitAsked();
    void placeChanged();
    void showsPreviewChanged();
    void stateChanged();
    void isDarkChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const UiServices m_with;
    WindowAlerts& m_alerts;
    ApplicationsPage m_applications;
    ThemeLook m_themeLook;
    ThemesPage m_themes;
    FontsPage m_fonts;
    PreviewModel m_preview;
    ApplyModel m_apply;
    EditActions m_edits;
    BackupsPage m_backups;
    HealthPage m_health;
    LeavingPage m_leaving;
    PreferencesPage m_preferences;
    InterfaceWords m_words;
    UpdatesPage m_updates;
    PrivacyNote m_privacy;
    Place m_place = Place::UserApps;
    bool m_showsPreview = false;
    bool m_isFirstStart;
    const bool m_wasWelcomed; ///< before this start
    bool m_wasStarting = true;
    void stateMayHaveChanged();
    void occupationMayHaveChanged();

    Menus m_menus;
    std::vector<NotificationCenter::Observation> m_observations;
};

} // namespace tavrik
