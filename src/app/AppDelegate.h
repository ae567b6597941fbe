#pragma once

#include "app/ApplicationFace.h"
#include "changes/ReloadNotifications.h"
#include "changes/apply/ApplyPipeline.h"
#include "platform/NotificationCenter.h"
#include "platform/SerialQueue.h"

#include <QObject>

#include <atomic>
#include <functional>
#include <set>
#include <string_view>
#include <vector>

namespace tavrik {

class SharedCoordinators;
struct Managers;

/// User default: the settings window is to show the backups when it opens next, and takes the flag back.
inline constexpr std::string_view kOpenBackupExplorer = "OpenBackupExplorer";

/// What runs when the application starts, what its menu does, and what keeps staged changes from vanishing when
/// it ends. Main thread only; what blocks runs on a queue of its own.
class AppDelegate {
public:
    enum class MenuAction { quit, applyChanges, manualRefresh, showPreferences, other };

    AppDelegate(Managers& managers, SharedCoordinators& coordinators, ApplicationFace& face);

    void applicationWillFinishLaunching();

    /// Returns at once: the checks run on the background queue, and ask as they go. `isStarting` until the
    /// question about unapplied changes of before is settled; nothing may be staged until then.
    void applicationDidFinishLaunching();

    bool isStarting() const { return m_isStarting; }

    /// Whether the application may end. Asks when something is staged. Not now, without a question, while
    /// something runs in the background: the application then ends by itself when that is over.
    bool applicationShouldTerminate();

    bool applicationShouldTerminateAfterLastWindowClosed() const { return true; }

    void applicationWillTerminate();

    /// The same for the main window: closing it ends the application.
    bool windowShouldClose(ManagedWindow& window);
    void windowWillClose(ManagedWindow& window);
    void windowDidBecomeMain(ManagedWindow& window);

    /// The menu's actions. Refused without a word while `validateMenuItem` says no.
    void applyChanges();
    void manualRefresh();
    void showPreferences();

    /// Drops what is staged and tells the lists. Not while an apply runs.
    void discardChanges();

    /// While a long operation owns the interface nothing but quitting; otherwise everything, the apply when
    /// something is staged.
    bool validateMenuItem(MenuAction action) const;

    bool isBlocked() const { return m_isBlocked; }

    /// Hears the result of each apply, on the main thread.
    void setApplyObserver(std::function<void(const ApplyResult&)> observer) { m_applied = std::move(observer); }

    /// Does what blocks after all that is under way, never beside an apply. The application does not end before
    /// it is done.
    void inBackground(std::function<void()> work);

    /// Something runs in the background, or waits to.
    bool isWorking() const { return m_works > 0; }

    /// Hears when `isStarting`, `isBlocked` or what a menu may do has changed.
    void setStateObserver(std::function<void()> observer) { m_stateChanged = std::move(observer); }

private:
    void runMaintenance();
    void browseBackups();
    void blockingStateChanged();
    void stateChanged();
    bool isAbandoned();
    bool mustWait();
    void closeManagedWindows();
    void workEnded();

    Managers& m_managers;
    SharedCoordinators& m_coordinators;
    ApplicationFace& m_face;
    std::set<ManagedWindow*> m_managedWindows;
    ManagedWindow* m_windowToClose = nullptr; ///< whose close was held back by the question
    ManagedWindow* m_mainWindow = nullptr;
    bool m_isShowingCloseWarning = false;
    bool m_isStarting = false;
    bool m_isBlocked = false;
    bool m_isApplying = false; ///< from the call to the result, the overlay comes and goes within
    int m_works = 0;           ///< in the background, running or waiting
    std::atomic<bool> m_endsWhenIdle = false; ///< the person wants the program to end
    std::function<void(const ApplyResult&)> m_applied;
    std::function<void()> m_stateChanged;
    std::vector<NotificationCenter::Observation> m_observations;
    QObject m_mainThread;
    SerialQueue m_background{"com.tavrik.background"}; ///< last: runs out before the rest goes
};

} // namespace tavrik
