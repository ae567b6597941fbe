#include "maintenance/LostExchange.h"

#include "backups/BackupManager.h"
#include "changes/apply/ApplyServices.h"
#include "maintenance/HealthLook.h"
#include "model/SettingsManager.h"
#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "platform/PathRules.h"
#include "platform/SqliteCopy.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <variant>

namespace tavrik {

namespace {

constexpr const char* kPage = "SELECT i.parent_id FROM items i JOIN apps a ON a.item_id = i.rowid "
                              "WHERE i.rowid = ? AND trim(a.bundleid) = ?";

/// Where the original stands in a backup; nothing when it cannot be opened.
std::optional<RowID> pageIn(const BackupManager& backups, const MacPath& backup,
                            const HealthLook::Row& original) {
    const BackupReading reading = backups.readBackup(backup);
    const auto* contents = std::get_if<BackupContents>(&reading);
    auto database =
        contents ? sqlite::openCopy(contents->launchpadDatabase) : Result<sqlite::Connection>(Error{});
    auto row = database ? database->prepare(kPage) : sqlite::Statement();
    if (!row)
        return std::nullopt;
    row.bind(1, static_cast<std::int64_t>(original.number));
    row.bind(2, original.bundleID);
    return row.step() == sqlite::Step::row ? std::optional(RowID{row.int64(0).value_or(0)}) : std::nullopt;
}

bool areExchanged(const ApplyServices& with, const HealthLook::Row& original, const HealthLook::Row& wrapper) {
    const auto backups = with.backups.listBackups();
    const auto page = [&](const MacPath& backup) { return pageIn(with.backups, backup, original); };
    return original.page != wrapper.page && !backups.empty() && page(backups.front()) != original.page &&
           std::ranges::any_of(backups, [&](const MacPath& backup) { return page(backup) == wrapper.page; });
}

/// Of two copies of an application the one that the wrapper was made of.
const HealthLook::Row* originalOf(const HealthLook& look, const HealthLook::Row& wrapper) {
    const auto contents = look.with.mac.files.readLink(wrapper.path / "Contents");
    const auto row = std::ranges::find_if(look.rows, [&](const HealthLook::Row& each) {
        return each.bundleID == wrapper.bundleID && contents && each.path == MacPath(*contents).parent();
    });
    return row == look.rows.end() ? nullptr : &*row;
}

} // namespace

void noteLostExchange(const HealthLook& look, const std::string& bundleID) {
    const auto wrapper = std::ranges::find_if(look.rows, [&](const HealthLook::Row& row) {
        return row.bundleID == bundleID && isWrapperPath(row.path);
    });
    const auto* original = wrapper == look.rows.end() ? nullptr : originalOf(look, *wrapper);
    if (!original || !areExchanged(look.with, *original, *wrapper))
        return;
    // The hidden flag of an original goes with its place.
    SettingsManager& settings = look.with.settings;
    if (wrapper->flags && (*wrapper->flags & kHiddenFlag) != 0)
        settings.saveHiddenFlagApp(bundleID, *wrapper->flags, original->number, wrapper->number, true);
    settings.saveMapping(bundleID, original->number, wrapper->number);
}

} // namespace tavrik
