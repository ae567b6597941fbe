#include "ui/models/WindowModel.h"

#include "app/AppDelegate.h"
#include "app/Managers.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

namespace tavrik {

WindowModel::WindowModel(const UiServices& with, WindowAlerts& alerts)
    : m_with(with),
      m_alerts(alerts),
      m_applications(with),
      m_themes(with),
      m_fonts(with),
      m_preview(with),
      m_apply(with),
      m_edits(with),
      m_backups(with),
      m_health(with),
      m_leaving(with),
      m_preferences(with) {
    qGuiApp->installEventFilter(this);
    with.delegate.setStateObserver([this] { Q_EMIT stateChanged(); });
    m_observations.push_back(with.managers.notificationCenter.observe(std::string(kPendingChangesUpdated),
                                                                      [this] { Q_EMIT stateChanged(); }));
    // An apply gives icon files other numbers.
    m_observations.push_back(with.managers.notificationCenter.observe(
        std::string(kReloadApplicationsAfterApply), [this] { m_with.images.raiseRevision(); }));
}

void WindowModel::setPlace(Place place) {
    if (place == m_place)
        return;
    m_place = place;
    Q_EMIT placeChanged();
}

void WindowModel::setShowsPreview(bool shows) {
    if (shows == m_showsPreview)
        return;
    m_showsPreview = shows;
    Q_EMIT showsPreviewChanged();
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

void WindowModel::discard() {
    m_with.delegate.discardChanges();
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
