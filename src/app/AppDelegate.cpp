#include "app/AppDelegate.h"

#include "app/Managers.h"
#include "app/SharedCoordinators.h"
#include "changes/apply/ManualRefresh.h"
#include "maintenance/StartupMaintenance.h"
#include "maintenance/WrapperFolderSetup.h"
#include "platform/Alerts.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/MainQueue.h"
#include "platform/UserDefaults.h"

#include <cstddef>
#include <string>
#include <utility>

namespace tavrik {

namespace {

constexpr std::size_t kReturn = 0;
constexpr std::size_t kAbandon = 1;

Alert unsavedChangesQuestion() {
    return {.title = "You have unsaved changes",
            .text = "Do you want to abandon your changes or return to the app?",
            .buttons = {"Return", "Abandon"},
            .style = AlertStyle::warning,
            .unanswered = kReturn};
}

} // namespace

AppDelegate::AppDelegate(Managers& managers, SharedCoordinators& coordinators, ApplicationFace& face)
    : m_managers(managers),
      m_coordinators(coordinators),
      m_face(face) {}

// The start

void AppDelegate::applicationWillFinishLaunching() {
    m_isStarting = true;
}

void AppDelegate::applicationDidFinishLaunching() {
    m_isStarting = true;
    m_face.disableAutomaticTabbing();
    for (ManagedWindow* window : m_face.openWindows())
        windowDidBecomeMain(*window);
    m_observations.push_back(m_managers.notificationCenter.observe(std::string(kBlockingStateChanged),
                                                                   [this] { blockingStateChanged(); }));
    m_observations.push_back(
        m_managers.notificationCenter.observe(std::string(kPendingChangesUpdated), [this] { stateChanged(); }));
    inBackground([this] { runMaintenance(); });
}

/// The order matters: the lists read the catalogue once what a kill left is cleared away, and nothing is
/// staged before the person has said what becomes of what was. Whoever quits meanwhile is asked nothing more.
void AppDelegate::runMaintenance() {
    setUpWrapperFolder(m_managers.applyServices.mac, m_managers.wrappers.tavrikAppsURL());
    StartupMaintenance maintenance(
        m_managers.applyServices,
        {.refreshLists = [this] { m_coordinators.refresh(); }, .browseBackups = [this] { browseBackups(); }});
    maintenance.removeLeftovers();
    m_managers.themes.open();
    m_coordinators.refresh();
    if (!m_endsWhenIdle)
        maintenance.offerRecovery();
    MainQueue::async(&m_mainThread, [this] {
        m_isStarting = false;
        stateChanged();
    });
    if (!m_endsWhenIdle)
        maintenance.checkOrphanedWrappers();
    if (!m_endsWhenIdle)
        maintenance.checkForLayoutIssues();
}

/// The window comes up on a later turn of the main thread, when the question is gone from the screen.
void AppDelegate::browseBackups() {
    const Status set = m_managers.applyServices.mac.defaults.set(kOpenBackupExplorer, plist::Value(true));
    if (!set)
        log("⚠️ Could not ask for the backups: " + set.error().description);
    MainQueue::async(&m_mainThread, [this] { m_face.openSettings(); });
}

// The menu

bool AppDelegate::validateMenuItem(MenuAction action) const {
    if (m_isBlocked)
        return action == MenuAction::quit;
    return action != MenuAction::applyChanges ||
           (m_managers.pendingChanges.hasPendingChanges() && !m_isApplying);
}

void AppDelegate::applyChanges() {
    if (!validateMenuItem(MenuAction::applyChanges))
        return;
    m_isApplying = true;
    stateChanged();
    QObject* const parentWindow = m_mainWindow ? m_mainWindow->object() : nullptr;
    inBackground([this, parentWindow] {
        const ApplyResult result = m_managers.apply.applyChanges(parentWindow);
        MainQueue::async(&m_mainThread, [this, result] {
            m_isApplying = false;
            stateChanged();
            if (m_applied)
                m_applied(result);
        });
    });
}

void AppDelegate::manualRefresh() {
    if (validateMenuItem(MenuAction::manualRefresh))
        inBackground([this] { tavrik::manualRefresh(m_managers.applyServices); });
}

void AppDelegate::showPreferences() {
    if (validateMenuItem(MenuAction::showPreferences))
        m_face.openSettings();
}

void AppDelegate::discardChanges() {
    if (m_isApplying)
        return;
    m_managers.pendingChanges.clearAllPendingChanges();
    m_managers.notificationCenter.post(kReloadApplicationsAfterDiscard);
}

void AppDelegate::blockingStateChanged() {
    m_isBlocked = m_managers.progress.isShown();
    stateChanged();
}

void AppDelegate::stateChanged() {
    if (m_stateChanged)
        m_stateChanged();
}

// The end

bool AppDelegate::applicationShouldTerminate() {
    if (m_isShowingCloseWarning)
        return false;
    if (m_managers.pendingChanges.hasPendingChanges()) {
        if (isAbandoned()) {
            closeManagedWindows();
            m_face.terminate();
        }
        return false;
    }
    if (mustWait())
        return false;
    closeManagedWindows();
    return true;
}

void AppDelegate::applicationWillTerminate() {
    m_observations.clear();
    m_managedWindows.clear();
    m_mainWindow = nullptr;
}

bool AppDelegate::windowShouldClose(ManagedWindow& window) {
    if (m_isShowingCloseWarning)
        return false;
    if (&window != m_mainWindow)
        return true;
    // It is where questions of what runs are shown, and the program ends with it.
    if (!m_managers.pendingChanges.hasPendingChanges())
        return !mustWait();
    m_windowToClose = &window;
    if (isAbandoned() && m_windowToClose)
        m_windowToClose->close();
    m_windowToClose = nullptr;
    return false;
}

void AppDelegate::windowWillClose(ManagedWindow& window) {
    m_managedWindows.erase(&window);
    if (m_mainWindow == &window)
        m_mainWindow = nullptr;
    if (m_windowToClose == &window)
        m_windowToClose = nullptr;
}

/// The first one is the program's; the settings come and go beside it.
void AppDelegate::windowDidBecomeMain(ManagedWindow& window) {
    m_managedWindows.insert(&window);
    if (!m_mainWindow)
        m_mainWindow = &window;
}

/// Asks, and drops what is staged when that is the answer. While an apply works on it nothing is dropped, and
/// the program ends by itself afterwards.
bool AppDelegate::isAbandoned() {
    m_isShowingCloseWarning = true;
    const bool abandons = m_managers.applyServices.mac.alerts.ask(unsavedChangesQuestion()) == kAbandon;
    m_isShowingCloseWarning = false;
    if (!abandons)
        return false;
    discardChanges();
    return !mustWait();
}

/// Whether something still runs in the background. The program then ends by itself when that is over.
bool AppDelegate::mustWait() {
    if (m_works > 0)
        m_endsWhenIdle = true;
    return m_works > 0;
}

void AppDelegate::closeManagedWindows() {
    // Each forgets itself when it closes.
    for (ManagedWindow* window : std::set(m_managedWindows)) {
        window->orderOut();
        window->close();
    }
    m_managedWindows.clear();
}

// What blocks

void AppDelegate::inBackground(std::function<void()> work) {
    ++m_works;
    m_background.async([this, work = std::move(work)] {
        work();
        MainQueue::async(&m_mainThread, [this] { workEnded(); });
    });
}

/// As if the person asked only now: an apply may have left something staged.
void AppDelegate::workEnded() {
    if (--m_works > 0 || !m_endsWhenIdle.exchange(false))
        return;
    if (applicationShouldTerminate())
        m_face.terminate();
}

} // namespace tavrik
