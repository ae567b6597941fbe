#include "maintenance/StartupMaintenance.h"

#include "backups/BackupManager.h"
#include "changes/PendingChangesManager.h"
#include "changes/RecoveryFile.h"
#include "maintenance/LayoutCheck.h"
#include "maintenance/Leftovers.h"
#include "maintenance/OrphanedIcons.h"
#include "maintenance/OrphanedWrappers.h"
#include "platform/Alerts.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/MainQueue.h"
#include "system/LaunchpadManager.h"
#include "themes/ThemeManager.h"

#include <cerrno>
#include <string>
#include <utility>

namespace tavrik {

namespace {

constexpr std::size_t kFirstButton = 0;

Alert recoveryQuestion() {
    return {.title = "Recovered unsaved changes",
            .text = "Your previous session had unsaved changes. Do you want to recover them?",
            .buttons = {"Recover", "Abandon"},
            .style = AlertStyle::informational,
            .unanswered = kFirstButton};
}

Alert orphanQuestion(const std::vector<MacPath>& wrappers) {
    std::string text;
    if (wrappers.size() == 1) {
        text = "An app you previously themed, " + wrappers.front().stem() + ", has been deleted.";
    } else {
        text = "The following apps you previously themed have been deleted:\n\n ";
        for (const MacPath& wrapper : wrappers)
            text += (wrapper == wrappers.front() ? "" : "\n") + wrapper.stem();
    }
    return {.title = "Notice",
            .text = text + "\n\nWould you like to clean up left over theme data?",
            .buttons = {"Clean Up", "Not Now"},
            .style = AlertStyle::informational};
}

Alert layoutWarning() {
    return {.title = "Possible Layout Issue Detected",
            .text = "Significant changes to your Launchpad layout have been detected. This might indicate a "
                    "database issue.",
            .buttons = {"Browse Backups", "Ignore"},
            .style = AlertStyle::warning};
}

/// With nothing to ask about there may still be an empty file, the record of a transfer, or icons that nothing
/// names, which a recovery clears away. A file that cannot be read is left alone: it may be good.
void settleWithoutAsking(const ApplyServices& with) {
    const auto file = RecoveryFile(with.mac.files, with.pendingChanges.pendingChangesBaseURL()).load();
    if (file || file.error().code == ENOENT)
        ignoreFailure(with.pendingChanges.recover());
}

} // namespace

StartupMaintenance::StartupMaintenance(const ApplyServices& with, StartupHooks hooks)
    : m_with(with),
      m_hooks(std::move(hooks)) {}

void StartupMaintenance::run() {
    removeLeftovers();
    offerRecovery();
    checkOrphanedWrappers();
    checkForLayoutIssues();
}

void StartupMaintenance::removeLeftovers() {
    m_with.backups.removeLeftovers();
    m_with.themes.library().removeLeftovers();
    for (const MacPath& leftover : leftovers(m_with)) {
        if (const Status removed = m_with.mac.files.remove(leftover); !removed)
            log("⚠️ Could not remove " + leftover.string() + ": " + removed.error().description);
    }
}

void StartupMaintenance::offerRecovery() {
    PendingChangesManager& pending = m_with.pendingChanges;
    log("\n🔄 Checking for pending changes to recover...");
    bool isRecoverable = false;
    MainQueue::sync([&] {
        isRecoverable = pending.hasRecoverableChanges();
        if (isRecoverable)
            return;
        log("   No recoverable changes found");
        settleWithoutAsking(m_with);
    });
    if (!isRecoverable)
        return;

    log("   Found changes - showing recovery dialog");
    if (m_with.mac.alerts.ask(recoveryQuestion()) != kFirstButton) {
        MainQueue::sync([&] { pending.clearAllPendingChanges(); });
        return;
    }
    MainQueue::sync([&] { ignoreFailure(pending.recover()); });
    m_hooks.refreshLists();
}

void StartupMaintenance::checkOrphanedWrappers() {
    const std::vector<MacPath> orphaned = orphanedWrappers(m_with);
    for (const MacPath& wrapper : orphaned)
        log("🗑️ Found orphaned tavrik app: " + wrapper.stem());
    if (orphaned.empty() || m_with.mac.alerts.ask(orphanQuestion(orphaned)) != kFirstButton)
        return;
    removeOrphanedWrappers(m_with, orphaned);
    cleanUpOrphanedIcons(m_with);
    m_hooks.refreshLists();
    m_with.launchpad.restartDock();
    log(">>> Restarted Dock to cleanup orphaned database entries");
}

void StartupMaintenance::checkForLayoutIssues() {
    if (checkLayout(m_with) < kLayoutIssueThreshold)
        return;
    if (m_with.mac.alerts.ask(layoutWarning()) == kFirstButton)
        m_hooks.browseBackups();
}

} // namespace tavrik
