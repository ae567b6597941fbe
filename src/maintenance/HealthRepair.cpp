#include "maintenance/HealthRepair.h"

#include "backups/BackupManager.h"
#include "changes/PendingChangesManager.h"
#include "changes/apply/ApplyServices.h"
#include "changes/apply/SelectedIcon.h"
#include "fonts/FontManager.h"
#include "maintenance/HealthCheck.h"
#include "maintenance/HealthLook.h"
#include "maintenance/Leftovers.h"
#include "maintenance/OrphanedWrappers.h"
#include "maintenance/RestyleAnew.h"
#include "maintenance/WrapperLinks.h"
#include "model/SettingsManager.h"
#include "platform/Bookmarks.h"
#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "platform/MainQueue.h"
#include "platform/PathRules.h"
#include "platform/Sqlite.h"
#include "platform/Threads.h"
#include "platform/Volume.h"
#include "system/DatabaseManager.h"
#include "system/DockManager.h"
#include "system/LaunchpadManager.h"
#include "wrappers/TavrikAppManager.h"
#include "wrappers/WrapperFolder.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>

namespace tavrik {

namespace {

using Kind = HealthFinding::Kind;
using Remedy = HealthFinding::Remedy;

constexpr const char* kSwitchOn = "UPDATE dbinfo SET value='0' WHERE key='ignore_items_update_triggers'";
constexpr const char* kNotDone = "It could not be done; the log says at which step it failed.";

/// The order in which findings are mended: first what later ones rely on, last the titles, which what was put
/// back has too.
constexpr Kind kOrder[] = {Kind::settings,
                           Kind::stagedChanges,
                           Kind::unfinishedApply,
                           Kind::leftover,
                           Kind::orphanedIcons,
                           Kind::triggerKey,
                           Kind::unfinishedSwap,
                           Kind::wrapperMissing,
                           Kind::wrapperLinks,
                           Kind::rows,
                           Kind::wrapperUnknown,
                           Kind::wrapperOrphaned,
                           Kind::selectedIcon,
                           Kind::wrapperIcon,
                           Kind::tile,
                           Kind::unfinishedTitles,
                           Kind::title,
                           Kind::label};

class Repair {
public:
    explicit Repair(const ApplyServices& services) : with(services), look(services) {}

    /// What was done, or why nothing was, in a sentence.
    std::string mend(const HealthFinding& finding) {
        switch (finding.kind) {
        case Kind::settings:
            ignoreFailure(!with.settings.loadSettings().empty());
            with.settings.dropCache();
            return "The copy was put in the place of the settings.";
        case Kind::stagedChanges:
            MainQueue::sync([this] { ignoreFailure(with.pendingChanges.savePendingChangesToTempFile()); });
            return "The file was put aside.";
        case Kind::unfinishedApply:
            return "What was left of it was taken up.";
        case Kind::leftover:
            return deleteLeftover(MacPath(finding.subject));
        case Kind::orphanedIcons:
            with.settings.setSelectedIcon(finding.subject, std::nullopt);
            return "It was forgotten.";
        case Kind::triggerKey:
            return inStores([this] { return switchTriggersOn(); });
        case Kind::unfinishedSwap:
        case Kind::wrapperMissing:
        case Kind::wrapperLinks:
        case Kind::rows:
            return inStores([&] { return buildAnew(finding.subject); });
        case Kind::wrapperUnknown:
            return inStores([&] { return removeUnknown(MacPath(finding.subject)); });
        case Kind::wrapperOrphaned:
            return inStores([&] { return removeOrphan(MacPath(finding.subject)); });
        case Kind::selectedIcon:
            return mendSelection(finding.subject);
        case Kind::wrapperIcon:
            return writeIcon(finding.subject);
        case Kind::tile:
            return mendTile(finding.subject);
        case Kind::unfinishedTitles:
        case Kind::title:
        case Kind::label:
            return inStores([this] { return writeTitles(); });
        default:
            return "The repair has no way to mend it.";
        }
    }

    void showToDock() {
        if (m_isDockStale)
            with.launchpad.restartDock();
    }

    const ApplyServices& with;
    const HealthLook look;
    std::optional<std::string> backup;

private:
    /// Only after a snapshot.
    std::string inStores(const std::function<std::string()>& change) {
        if (!m_snapshot)
            m_snapshot = with.backups.createBackup();
        if (!*m_snapshot)
            return "Launchpad and the Dock were left alone. " + m_snapshot->error().description;
        backup = (*m_snapshot)->stem();
        m_isDockStale = true;
        return change();
    }

    std::string deleteLeftover(const MacPath& file) {
        const auto found = leftovers(with);
        if (std::ranges::find(found, file) == found.end())
            return "It is not there any more.";
        const Status removed = with.mac.files.remove(file);
        return removed ? "It was deleted." : "It could not be deleted: " + removed.error().description + ".";
    }

    std::string switchTriggersOn() const {
        const HostPath file = with.mac.volume.hostPath(with.database.launchpadDatabasePath());
        auto database = sqlite::Connection::open(file, sqlite::OpenMode::readWrite);
        if (!database || !database->execute(kSwitchOn))
            return "They could not be switched on: " + (database ? database->lastError() : "no database") + ".";
        return "They were switched on.";
    }

    std::string buildAnew(const std::string& bundleID) {
        switch (restyleAnew(look, bundleID)) {
        case RestyledAnew::no:
            return kNotDone;
        case RestyledAnew::ownLook:
            return look.nameOf(bundleID) + " has its own look back. No icon is chosen for it now.";
        case RestyledAnew::staged:
            break;
        }
        return look.nameOf(bundleID) +
               " has its own look back, and its icon is staged. The next apply restyles "
               "it.";
    }

    std::string removeUnknown(const MacPath& wrapper) {
        const std::string bundleID = bundleIdentifierOf(with.mac.files, wrapper);
        if (!bundleID.empty() && !look.mappings.contains(bundleID) && look.apps.contains(bundleID) &&
            look.wrapperOf(bundleID) == wrapper)
            return buildAnew(bundleID);
        const Status removed = WrapperFolder(with.mac).remove(wrapper);
        return removed ? "It was removed." : "It could not be removed: " + removed.error().description + ".";
    }

    std::string removeOrphan(const MacPath& wrapper) {
        removeOrphanedWrappers(with, {wrapper});
        return "The wrapper was removed.";
    }

    std::string mendSelection(const std::string& bundleID) {
        if (selectedIconFile(with, bundleID))
            return buildAnew(bundleID);
        with.settings.setSelectedIcon(bundleID, std::nullopt);
        return "It is noted that " + look.nameOf(bundleID) + " shows its own icon.";
    }

    std::string writeIcon(const std::string& bundleID) {
        const QImage icon = selectedIconOf(with, bundleID);
        if (icon.isNull())
            return "The icon cannot be read. Choose another one, and apply.";
        const ApplicationInfo app = look.applicationFor(bundleID);
        if (!with.wrappers.setWrapperIcon(app, icon))
            return kNotDone;
        with.wrappers.registerWrapper(look.wrapperOf(bundleID));
        m_isDockStale = true;
        return "The icon was written again.";
    }

    std::string mendTile(const std::string& bundleID) {
        if (look.mappings.contains(bundleID))
            return inStores([&] {
                return std::string(with.dock.updateDockEntry(bundleID, look.wrapperOf(bundleID))
                                       ? "The tile leads to the wrapper."
                                       : kNotDone);
            });
        const MacPath tile = look.tileOf(bundleID);
        if (!isWrapperPath(tile) || with.mac.files.exists(tile)) {
            with.settings.removeDockBookmark(bundleID);
            return "The bookmark was forgotten.";
        }
        return inStores([&] { return restoreTile(bundleID); });
    }

    /// By its own first bookmark, if that still leads somewhere or there is nothing better.
    std::string restoreTile(const std::string& bundleID) {
        const auto saved = with.settings.getDockBookmark(bundleID);
        const MacPath original = look.originalOf(bundleID);
        const bool isSavedBetter = saved && (original.empty() || with.mac.bookmarks.resolve(saved->bookmark));
        const bool isDone = isSavedBetter ? with.dock.restoreDockEntry(bundleID)
                                          : with.dock.forceRestoreDockEntry(bundleID, original);
        return isDone ? "The tile leads to the application." : kNotDone;
    }

    std::string writeTitles() {
        if (!std::exchange(m_areTitlesWritten, true)) {
            if (const auto style = with.settings.getCurrentFontState())
                with.fonts.applyFont(style->fontName);
            else
                with.fonts.resetAllFonts();
        }
        return "All names were written.";
    }

    std::optional<Result<MacPath>> m_snapshot;
    bool m_isDockStale = false;
    bool m_areTitlesWritten = false;
};

bool isStillThere(const HealthFinding& finding, const std::vector<HealthFinding>& now) {
    return std::ranges::any_of(now, [&](const HealthFinding& each) {
        return each.kind == finding.kind && each.subject == finding.subject;
    });
}

} // namespace

HealthRepair repairHealth(const ApplyServices& with, const std::vector<HealthFinding>& findings) {
    assertOffMainThread("The repair");
    HealthRepair result;
    for (const HealthFinding& finding : findings) {
        if (finding.remedy == Remedy::repair)
            result.outcomes.push_back({.finding = finding, .isMended = false, .sentence = {}});
    }
    if (result.outcomes.empty())
        return result;

    Repair repair(with);
    for (const Kind kind : kOrder) {
        for (HealthRepair::Outcome& outcome : result.outcomes) {
            if (outcome.finding.kind == kind)
                outcome.sentence = repair.mend(outcome.finding);
        }
    }
    repair.showToDock();
    result.backup = repair.backup;

    // What counts is what can be seen, whatever each step said of itself.
    const auto now = checkHealth(with);
    for (HealthRepair::Outcome& outcome : result.outcomes)
        outcome.isMended = !isStillThere(outcome.finding, now);
    MainQueue::sync([&] { result.hasStaged = with.pendingChanges.hasPendingChanges(); });
    return result;
}

} // namespace tavrik
