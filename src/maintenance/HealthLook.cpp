#include "maintenance/HealthLook.h"

#include "changes/apply/ApplyServices.h"
#include "fonts/PlainNames.h"
#include "model/SettingsManager.h"
#include "model/catalogue/AppManager.h"
#include "platform/Bookmarks.h"
#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "platform/PathRules.h"
#include "platform/SqliteCopy.h"
#include "platform/Volume.h"
#include "system/DatabaseManager.h"
#include "system/DockManager.h"
#include "system/DockTiles.h"
#include "system/Trimmed.h"
#include "wrappers/TavrikAppManager.h"

#include <algorithm>
#include <cerrno>

namespace tavrik {

namespace {

constexpr const char* kRows =
    "SELECT i.rowid, i.flags, a.title, a.bundleid, a.bookmark, i.parent_id FROM items i "
    "JOIN apps a ON a.item_id = i.rowid WHERE a.bookmark IS NOT NULL ORDER BY i.rowid";
constexpr const char* kTriggerKey = "SELECT value FROM dbinfo WHERE key='ignore_items_update_triggers'";

Status readRows(sqlite::Connection& database, HealthLook& look) {
    auto key = database.prepare(kTriggerKey);
    if (!key)
        return Error{database.lastError()};
    if (key.step() == sqlite::Step::row)
        look.triggerKey = key.text(0).value_or("");

    auto statement = database.prepare(kRows);
    if (!statement)
        return Error{database.lastError()};
    sqlite::Step step = statement.step();
    for (; step == sqlite::Step::row; step = statement.step()) {
        HealthLook::Row row{.number = RowID{statement.int64(0).value_or(0)},
                            .page = RowID{statement.int64(5).value_or(0)},
                            .flags = statement.int32(1),
                            .title = statement.text(2).value_or(""),
                            .bundleID = trimmed(statement.text(3).value_or("")),
                            .path = {},
                            .recorded = {}};
        const Bytes bookmark = statement.blob(4).value_or(Bytes());
        if (const auto path = look.with.mac.bookmarks.resolve(bookmark))
            row.path = *path;
        if (const auto recorded = look.with.mac.bookmarks.recordedPath(bookmark))
            row.recorded = *recorded;
        look.rows.push_back(std::move(row));
    }
    return step == sqlite::Step::done ? Status(Done{}) : Status(Error{database.lastError()});
}

std::optional<std::string> readLaunchpad(HealthLook& look) {
    const MacPath path = look.with.database.launchpadDatabasePath();
    if (!look.with.mac.files.exists(path))
        return "The Launchpad database is missing.";
    const HostPath host = look.with.mac.volume.hostPath(path);
    const auto content = sqlite::copyOf(host);
    auto copy = content ? sqlite::openCopy(*content) : Result<sqlite::Connection>(content.error());
    if (!copy)
        return "The Launchpad database cannot be read: " + copy.error().description + ".";
    if (const Status checked = sqlite::checkIntegrity(*copy); !checked)
        return "The Launchpad database is damaged: " + checked.error().description + ".";
    if (const Status read = readRows(*copy, look); !read) {
        look.rows.clear();
        return "The Launchpad database has not the form that is known: " + read.error().description + ".";
    }
    const auto missing = look.with.database.missingColumns();
    if (missing && !missing->empty()) {
        std::string names;
        for (const std::string& name : *missing)
            names += (names.empty() ? "" : ", ") + name;
        return "The Launchpad database has not the form that is known: it lacks " + names + ".";
    }
    return std::nullopt;
}

bool holdsSettings(const FileManager& files, const MacPath& file) {
    const auto content = files.read(file);
    const auto root = content ? plist::parse(*content) : Result<plist::Value>(content.error());
    const auto* dictionary = root ? root->as<plist::Dictionary>() : nullptr;
    return dictionary && !dictionary->empty();
}

bool hasWrappers(const ApplyServices& with) {
    const auto names = with.mac.files.list(with.wrappers.tavrikAppsURL());
    return names && std::ranges::any_of(*names, [](const auto& name) { return name.ends_with(".app"); });
}

HealthLook::Settings lookAtSettings(const ApplyServices& with) {
    const FileManager& files = with.mac.files;
    const MacPath main = with.settings.appSupportURL() / "AppSettings.plist";
    const MacPath backup = with.settings.appSupportURL() / "AppSettings.backup";
    if (holdsSettings(files, main))
        return HealthLook::Settings::sound;
    if (holdsSettings(files, backup))
        return HealthLook::Settings::fromBackup;
    // Before the first change there are none.
    const bool areThere = files.exists(main) || files.exists(backup) || hasWrappers(with);
    return areThere ? HealthLook::Settings::lost : HealthLook::Settings::sound;
}

std::set<std::string> bookmarkedApps(SettingsManager& settings) {
    std::set<std::string> bundleIDs;
    const plist::Value root(settings.loadSettings());
    if (const auto* bookmarks = root.find<plist::Dictionary>("DockBookmarks")) {
        for (const auto& [bundleID, bookmark] : *bookmarks)
            bundleIDs.insert(bundleID);
    }
    return bundleIDs;
}

} // namespace

HealthLook::HealthLook(const ApplyServices& services) : with(services), settings(lookAtSettings(services)) {
    launchpadFault = readLaunchpad(*this);
    dock = with.dock.readDockPlist();
    if (!dock)
        dockFault = with.mac.files.exists(with.dock.dockPlistPath())
                        ? "The Dock's preferences cannot be read: " + with.dock.dockPlistPath().string() + "."
                        : "The Dock's preferences are missing: " + with.dock.dockPlistPath().string() + ".";
    savedBookmarks = bookmarkedApps(with.settings);
    mappings = with.settings.getAllMappings();
    swaps = with.settings.getAllSwapRecords();
    // A listing would make a missing database.
    if (!launchpadFault) {
        for (ApplicationInfo& app : with.apps.loadApplications())
            apps.emplace(app.bundleID, std::move(app));
    }
}

const HealthLook::Row* HealthLook::rowOf(const std::string& bundleID, RowID number) const {
    const auto row = std::ranges::find_if(
        rows, [&](const Row& each) { return each.number == number && each.bundleID == bundleID; });
    return row == rows.end() ? nullptr : &*row;
}

MacPath HealthLook::originalOf(const std::string& bundleID) const {
    for (const Row& row : rows) {
        if (row.bundleID == bundleID && !row.path.empty() && !isWrapperPath(row.path) && !isTrashPath(row.path))
            return row.path;
    }
    const auto app = apps.find(bundleID);
    const bool isListed =
        app != apps.end() && !isWrapperPath(app->second.path) && !isTrashPath(app->second.path);
    return isListed && with.mac.files.exists(app->second.path) ? app->second.path : MacPath();
}

MacPath HealthLook::wrapperOf(const std::string& bundleID) const {
    if (const auto mapping = mappings.find(bundleID); mapping != mappings.end()) {
        const Row* row = rowOf(bundleID, mapping->second.tavrikRowID);
        if (row && isWrapperPath(row->best()))
            return row->best();
    }
    const auto app = apps.find(bundleID);
    return app == apps.end() ? MacPath() : with.wrappers.wrapperPath(app->second).value_or(MacPath());
}

MacPath HealthLook::tileOf(const std::string& bundleID) const {
    plist::Value preferences = dock.value_or(plist::Value());
    const dock::Tile tile = dock::findTile(preferences, bundleID);
    if (!tile)
        return MacPath();
    if (const Bytes* bookmark = tile.bookmark()) {
        if (const auto path = with.mac.bookmarks.resolve(*bookmark))
            return *path;
        if (const auto path = with.mac.bookmarks.recordedPath(*bookmark))
            return *path;
    }
    return tile.url() ? dock::pathOf(*tile.url()) : MacPath();
}

std::string HealthLook::nameOf(const std::string& bundleID) const {
    const MacPath original = originalOf(bundleID);
    const MacPath path = original.empty() ? wrapperOf(bundleID) : original;
    return path.empty() ? bundleID : bundleName(path);
}

ApplicationInfo HealthLook::applicationFor(const std::string& bundleID) const {
    const auto listed = apps.find(bundleID);
    ApplicationInfo app = listed == apps.end() ? ApplicationInfo() : listed->second;
    app.bundleID = bundleID;
    app.name = nameOf(bundleID);
    const MacPath wrapper = wrapperOf(bundleID);
    if (!wrapper.empty() && app.path.stem() != wrapper.stem())
        app.path = wrapper;
    return app;
}

} // namespace tavrik
