#include "maintenance/RemoveEverything.h"

#include "backups/BackupManager.h"
#include "changes/PendingChangesManager.h"
#include "changes/apply/ApplyObstacles.h"
#include "changes/apply/ApplySnapshot.h"
#include "changes/apply/LaunchpadRows.h"
#include "fonts/FontManager.h"
#include "maintenance/Traces.h"
#include "maintenance/WrapperFolderContents.h"
#include "maintenance/WrapperRemovals.h"
#include "model/SettingsManager.h"
#include "platform/Clock.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/MainQueue.h"
#include "platform/NotificationCenter.h"
#include "platform/Threads.h"
#include "system/AccessCheck.h"
#include "system/DockManager.h"
#include "system/LaunchpadManager.h"
#include "wrappers/TavrikAppManager.h"

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace tavrik {

namespace {

/// The Dock that has just been started takes its time to look which bundles are gone.
constexpr int kMostLooks = 15;
constexpr auto kBetweenLooks = 1000ms;

/// It may hold its database for a moment.
constexpr int kMostTries = 8;
constexpr auto kBetweenTries = 500ms;

constexpr int kMostFontTries = 3;

std::string joined(const std::vector<std::string>& texts, const char* between) {
    std::string all;
    for (const std::string& text : texts)
        all += (all.empty() ? "" : between) + text;
    return all;
}

Result<Traces> readPatiently(const ApplyServices& with) {
    Result<Traces> traces = readTraces(with);
    for (int tries = 1; !traces && tries < kMostTries; ++tries) {
        with.mac.clock.sleep(kBetweenTries);
        traces = readTraces(with);
    }
    return traces;
}

/// Titles that are locked stay as they are, and are tried once more.
void resetNames(const ApplyServices& with, const Traces& before, std::vector<std::string>& done) {
    if (!before.hasStyle())
        return;
    for (int tries = 0; tries < kMostFontTries; ++tries) {
        with.fonts.resetAllFonts();
        const Result<Traces> now = readPatiently(with);
        if (now && !now->hasStyle()) {
            done.push_back("All names are in plain text.");
            return;
        }
    }
}

/// Until the Dock has dropped the rows of the wrappers that are gone.
void restartDock(const ApplyServices& with) {
    with.launchpad.restartDock();
    for (int looks = 0; looks < kMostLooks; ++looks) {
        with.mac.clock.sleep(kBetweenLooks);
        const Result<Traces> now = readTraces(with);
        if (now && now->wrapperRows.empty())
            return;
    }
    log("⚠️ The Dock did not drop the rows of all wrappers");
}

/// What others have put there stays, and the folder then too.
void removeFolder(const ApplyServices& with, std::vector<std::string>& done) {
    FileManager& files = with.mac.files;
    const MacPath& folder = with.wrappers.tavrikAppsURL();
    const auto contents = readWrapperFolder(files, folder);
    if (!contents || !contents->isThere || !contents->wrappers.empty())
        return;
    if (!contents->foreign.empty()) {
        ignoreFailure(files.remove(folder / WrapperFolder::kWarning));
        done.push_back("The folder " + folder.string() + " stays, because it holds what is not Tavrik's: " +
                       joined(contents->foreign, ", ") + ".");
        return;
    }
    if (const Status removed = files.remove(folder); removed)
        done.push_back("The folder " + folder.string() + " is gone.");
    else
        log("⚠️ Could not remove " + folder.string() + ": " + removed.error().description);
}

/// What is still to be taken back must stay known.
void clearSettings(const ApplyServices& with) {
    const Result<Traces> left = readPatiently(with);
    if (!left)
        return;
    if (left->restyled.empty() && left->unfinished.empty() && left->wrapperTiles.empty() && !left->hasStyle()) {
        ignoreFailure(with.settings.clearAfterRestore({}));
        return;
    }
    std::map<std::string, std::optional<std::int64_t>> unused;
    for (const std::string& bundleID : left->selectedIcons) {
        if (!left->restyled.contains(bundleID))
            unused.emplace(bundleID, std::nullopt);
    }
    with.settings.setSelectedIcons(unused);
}

} // namespace

Result<std::vector<std::string>> RemoveEverything::traces() const {
    const Result<Traces> traces = readTraces(m_with);
    return traces ? Result(traces->inWords()) : traces.error();
}

Result<RemoveEverything::Outcome> RemoveEverything::removeFromSystem() {
    assertOffMainThread("Removing everything");
    if (const Status access = checkAccess(m_with.mac, m_with.settings.appSupportURL()); !access)
        return access.error();
    const Result<Traces> before = readTraces(m_with);
    if (!before)
        return before.error();
    if (before->empty())
        return Outcome{};
    if (const auto obstacles = obstaclesTo(m_with, {}); !obstacles.empty())
        return Error{joined(obstacles, " ")};
    const Result<MacPath> backup = m_with.backups.createBackup();
    if (!backup)
        return backup.error();

    log("\n=== REMOVING EVERYTHING ===");
    Outcome outcome{.backup = backup->stem(), .done = {}, .traces = {}};
    WrapperRemovals(m_with, outcome.done).run();
    resetNames(m_with, *before, outcome.done);
    restartDock(m_with);
    // Last, since a repeat after a kill goes by these whether the Dock must be restarted.
    removeFolder(m_with, outcome.done);
    clearSettings(m_with);
    MainQueue::sync([this] {
        m_with.pendingChanges.noteRestored();
        m_with.notifications.post(kReloadApplicationsAfterBackupRestore);
    });

    const Result<Traces> after = readPatiently(m_with);
    outcome.traces =
        after ? after->inWords() : std::vector{"What is left cannot be told. " + after.error().description};
    for (const std::string& trace : outcome.traces)
        log("⚠️ Left: " + trace);
    log("=== END REMOVING EVERYTHING ===\n");
    return outcome;
}

} // namespace tavrik
