#include "ui/models/WindowModel.h"

#include "app/AppDelegate.h"
#include "app/MacHost.h"
#include "app/Managers.h"
#include "platform/Mac.h"
#include "platform/UserDefaults.h"
#include "remote/RemoteServices.h"

#include <QEvent>
#include <QPalette>

namespace tavrik {

namespace {

/// User default: the person was told what the program does.
constexpr std::string_view kWelcomed = "Welcomed";

} // namespace

WindowModel::WindowModel(const UiServices& with, WindowAlerts& alerts)
    : m_with(with),
      m_alerts(alerts),
      m_applications(with),
      m_themeLook(with),
      m_themes(with, m_themeLook),
      m_fonts(with),
      m_preview(with),
      m_apply(with),
      m_edits(with),
      m_backups(with),
      m_health(with),
      m_leaving(with),
      m_preferences(with, m_themeLook),
      m_words(with),
      m_updates(with, m_words),
      m_privacy(with),
      m_isFirstStart(!with.host.mac().defaults.value(kWelcomed)),
      m_wasWelcomed(!m_isFirstStart),
      m_menus(*this, with.delegate) {
    qGuiApp->installEventFilter(this);
    with.delegate.setStateObserver([this] { stateMayHaveChanged(); });
    m_observations.push_back(with.managers.notificationCenter.observe(std::string(kPendingChangesUpdated),
                                                                      [this] { stateMayHaveChanged(); }));
    with.remote.setChanged([this] {
        m_updates.refresh();
        Q_EMIT m_words.changed();
    });
    QObject::connect(&m_apply, &ApplyModel::changed, this, &WindowModel::occupationMayHaveChanged);
    QObject::connect(&m_alerts, &WindowAlerts::changed, this, &WindowModel::occupationMayHaveChanged);
    QObject::connect(&m_edits, &EditActions::changed, this, [this] { m_menus.refresh(); });
    // An apply gives icon files other numbers.
    m_observations.push_back(with.managers.notificationCenter.observe(
        std::string(kReloadApplicationsAfterApply), [this] { m_with.images.raiseRevision(); }));
}

void WindowModel::stateMayHaveChanged() {
    if (m_wasStarting && !m_with.delegate.isStarting()) {
        m_wasStarting = false;
        m_edits.begin();
        m_privacy.look();
    }
    Q_EMIT stateChanged();
    occupationMayHaveChanged();
}

/// The question about the network comes when nothing else wants an answer, and not in the same breath as the
/// welcome.
void WindowModel::occupationMayHaveChanged() {
    m_menus.refresh();
    m_updates.setWindowFree(m_wasWelcomed && !isBlocked() && m_apply.stage() == ApplyModel::Stage::Idle &&
                            !m_alerts.isShown());
}

void WindowModel::ask(Request request) {
    switch (request) {
    case Request::AddIcons:
    case Request::Find:
        if (m_place != Place::UserApps && m_place != Place::SystemApps)
            goTo(Place::UserApps);
        setShowsPreview(false);
        break;
    case Request::NewTheme:
    case Request::ImportTheme:
    case Request::ImportFolder:
        goTo(Place::Themes);
        break;
    case Request::Health:
    case Request::Leave:
        openSettings();
        break;
    default:
        break;
    }
    Q_EMIT asked(request);
}

void WindowModel::goTo(Place place) {
    setShowsPreview(false);
    setPlace(place);
}

void WindowModel::endFirstStart() {
    if (!m_isFirstStart)
        return;
    m_isFirstStart = false;
    ignoreFailure(m_with.host.mac().defaults.set(kWelcomed, plist::Value(true)));
    Q_EMIT isFirstStartChanged();
}

void WindowModel::setPlace(Place place) {
    if (place == m_place)
        return;
    m_place = place;
    Q_EMIT placeChanged();
    m_menus.refresh();
}

void WindowModel::setShowsPreview(bool shows) {
    if (shows == m_showsPreview)
        return;
    m_showsPreview = shows;
    Q_EMIT showsPreviewChanged();
    m_menus.refresh();
}

bool WindowModel::isBlocked() const {
    return m_with.delegate.isBlocked() || m_with.delegate.isStarting();
}

int WindowModel::stagedCount() const {
    const StagedChanges& staged = m_with.managers.pendingChanges.staged();
    std::size_t count = staged.pendingChanges.size() + staged.pendingThemeIconHides.size() +
                        staged.pendingThemeDeletions.size();
    for (const auto& [theme, icons] : staged.pendingThemeIconDeletions)
        count += icons.size();
    return static_cast<int>(count) + (staged.pendingFont ? 1 : 0) + (staged.pendingReset ? 1 : 0);
}

bool WindowModel::canApply() const {
    return m_with.delegate.validateMenuItem(AppDelegate::MenuAction::applyChanges);
}

bool WindowModel::isDark() const {
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

void WindowModel::refresh() {
    m_with.delegate.manualRefresh();
}

void WindowModel::openSettings() {
    m_with.delegate.showPreferences();
}

bool WindowModel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == qGuiApp && event->type() == QEvent::ApplicationPaletteChange)
        Q_EMIT isDarkChanged();
    return QObject::eventFilter(watched, event);
}

} // namespace tavrik
