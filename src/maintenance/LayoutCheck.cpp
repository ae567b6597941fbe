#include "maintenance/LayoutCheck.h"

#include "backups/BackupManager.h"
#include "backups/TemporaryDatabase.h"
#include "changes/apply/ApplyServices.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/SqliteCopy.h"
#include "platform/Threads.h"
#include "platform/Volume.h"
#include "system/DatabaseManager.h"

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <variant>
#include <vector>

namespace tavrik {

namespace {

constexpr const char* kPlacements = "    SELECT a.bundleid, i.parent_id\n"
                                    "    FROM apps a\n"
                                    "    JOIN items i ON a.item_id = i.rowid\n"
                                    "    WHERE a.bundleid IS NOT NULL";

/// So large a part of the applications must have moved before anything is said.
constexpr double kChangedPart = 0.5;

/// A bundle identifier and the page or folder that its row stands in.
using Placement = std::pair<std::string, std::int64_t>;

/// Nothing when they cannot be read to the end.
std::optional<std::vector<Placement>> placementsIn(sqlite::Connection& database) {
    auto rows = database.prepare(kPlacements);
    if (!rows)
        return std::nullopt;
    std::vector<Placement> placements;
    sqlite::Step step = rows.step();
    for (; step == sqlite::Step::row; step = rows.step())
        placements.emplace_back(rows.text(0).value_or(""), rows.int64(1).value_or(0));
    return step == sqlite::Step::done ? std::optional(std::move(placements)) : std::nullopt;
}

std::optional<Bytes> databaseOf(BackupManager& backups, const MacPath& backup) {
    BackupReading reading = backups.readBackup(backup);
    if (auto* contents = std::get_if<BackupContents>(&reading))
        return std::move(contents->launchpadDatabase);
    const BackupFault fault = std::get<BackupFault>(reading);
    if (fault == BackupFault::noArchive)
        log("Failed to extract backup files: " + inWords(fault));
    log("  Failed to extract backup database");
    return std::nullopt;
}

std::optional<std::vector<Placement>> placementsInBackup(Mac& mac, Bytes database) {
    TemporaryDatabase copy(mac, MacPath(mac.volume.temporaryFolder()) / "backup_check.db");
    if (const Status opened = copy.open(database); !opened) {
        log("  Failed to open backup database: " + opened.error().description);
        return std::nullopt;
    }
    return placementsIn(copy.connection());
}

/// As a backup taken now would have them: an application whose wrapper stands in its place has not moved.
std::optional<std::vector<Placement>> livePlacements(const ApplyServices& with) {
    const HostPath file = with.mac.volume.hostPath(with.database.launchpadDatabasePath());
    const auto bytes = file.empty() ? Result<Bytes>(Error{"there is none"}) : sqlite::copyOf(file);
    auto copy = bytes ? sqlite::openCopy(*bytes) : Result<sqlite::Connection>(bytes.error());
    if (!copy) {
        log("  Failed to read Launchpad database: " + copy.error().description);
        return std::nullopt;
    }
    ignoreFailure(with.backups.cleanInPlace(*copy));
    return placementsIn(*copy);
}

struct Comparison {
    int checked = 0; ///< applications that are in both
    int changed = 0; ///< of these, on another page or in another folder
};

Comparison compare(const std::vector<Placement>& backup, const std::vector<Placement>& live) {
    std::unordered_map<std::string, std::int64_t> parents;
    for (const auto& [bundleID, parent] : backup)
        parents.insert_or_assign(bundleID, parent);
    Comparison comparison;
    for (const auto& [bundleID, parent] : live) {
        const auto known = parents.find(bundleID);
        if (known == parents.end())
            continue;
        ++comparison.checked;
        if (known->second != parent)
            ++comparison.changed;
    }
    return comparison;
}

} // namespace

int checkLayout(const ApplyServices& with) {
    assertOffMainThread("The layout check");
    log("🔍 Checking for layout issues...");
    const auto backups = with.backups.listBackups();
    if (backups.empty()) {
        log("  No backups available for comparison");
        return 0;
    }
    auto database = databaseOf(with.backups, backups.back());
    const auto before = database ? placementsInBackup(with.mac, std::move(*database)) : std::nullopt;
    const auto now = before ? livePlacements(with) : std::nullopt;
    if (!now)
        return 0;

    const auto [checked, changed] = compare(*before, *now);
    log("  Layout check: " + std::to_string(checked) + " apps checked, " + std::to_string(changed) +
        " changed pages");
    const int result = checked >= 1 && changed > kChangedPart * checked ? changed : 0;
    if (result < kLayoutIssueThreshold)
        log("  ✅ Layout appears normal (" + std::to_string(result) + " position changes)");
    else
        log(std::to_string(result) + " apps with changed positions");
    return result;
}

} // namespace tavrik
