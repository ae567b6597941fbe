#include "system/DatabaseManager.h"

#include "model/SettingsManager.h"
#include "model/UnsupportedAppsManager.h"
#include "platform/AppFolders.h"
#include "platform/Bookmarks.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/PathRules.h"
#include "platform/Random.h"
#include "platform/Sqlite.h"
#include "platform/Threads.h"
#include "platform/Volume.h"
#include "system/IconManager.h"
#include "system/PlacementSwap.h"
#include "system/TitleOrder.h"
#include "system/Trimmed.h"

#include <QString>

#include <algorithm>
#include <array>
#include <unordered_set>

namespace tavrik {

namespace {

constexpr const char* kListing =
    "    SELECT a.title, a.bundleid, a.bookmark, i.flags, i.rowid, i.parent_id, i.ordering\n"
    "    FROM apps a\n"
    "    JOIN items i ON a.item_id = i.rowid\n"
    "    WHERE a.bookmark IS NOT NULL \n"
    "    AND ((i.flags & 128) = 0 OR a.bundleid LIKE 'com.apple.%')\n"
    "    ORDER BY a.title";

constexpr const char* kEntries = "    SELECT i.rowid, i.flags, i.parent_id, i.ordering, a.bookmark\n"
                                 "    FROM items i\n"
                                 "    JOIN apps a ON i.rowid = a.item_id\n"
                                 "    WHERE a.bundleid = ?";

/// A table with the columns of it that the program reads or writes.
struct Table {
    const char* name;
    std::vector<const char*> columns;
};

std::optional<sqlite::Connection> openDatabase(const Volume& volume, const MacPath& path,
                                               sqlite::OpenMode mode) {
    assertOffMainThread("opening the Launchpad database");
    const HostPath file = volume.hostPath(path);
    return file.empty() ? std::nullopt : sqlite::Connection::open(file, mode);
}

} // namespace

DatabaseManager::DatabaseManager(Mac& mac, SettingsManager& settings, IconManager& icons,
                                 const UnsupportedAppsManager& unsupported)
    : m_mac(mac),
      m_settings(settings),
      m_icons(icons),
      m_unsupported(unsupported),
      m_home(mac.volume.home()) {}

MacPath DatabaseManager::launchpadDatabasePath() const {
    return tavrik::launchpadDatabasePath(m_mac.volume.temporaryFolder());
}

std::vector<DatabaseManager::AppRow> DatabaseManager::loadLaunchpadApps() {
    auto connection = openDatabase(m_mac.volume, launchpadDatabasePath(), sqlite::OpenMode::readWriteCreate);
    if (!connection)
        return {};
    std::vector<AppRow> apps;
    std::vector<HiddenRow> hidden;
    {
        auto listing = connection->prepare(kListing);
        if (!listing)
            return {};
        std::unordered_set<std::string> seen;
        sqlite::Step step = listing.step();
        for (; step == sqlite::Step::row; step = listing.step()) {
            auto title = listing.text(0);
            const auto storedIdentifier = listing.text(1);
            if (!title || !storedIdentifier)
                continue;
            std::string identifier = trimmed(*storedIdentifier);
            if (!seen.insert(identifier).second)
                continue;
            auto bookmark = listing.blob(2);
            const auto rowID = listing.int64(4);
            if (!bookmark || !rowID)
                continue;
            const auto path = resolveBookmarkPath(*bookmark);
            if (!path)
                continue;
            DatabaseAppEntry entry{RowID{*rowID}, listing.int32(3), RowID{listing.int64(5).value_or(0)},
                                   listing.int32(6).value_or(0), std::move(*bookmark)};
            if (entry.isHidden() && identifier.starts_with("com.apple."))
                hidden.push_back({identifier, *entry.flags, entry.rowID, isWrapperPath(*path)});
            apps.emplace_back(describe(std::move(*title), std::move(identifier), *path), std::move(entry));
        }
        if (step == sqlite::Step::failed)
            return {};
    }
    connection.reset();

    recordHiddenApps(hidden);
    sortByTitle(apps, [](const AppRow& row) -> const std::string& { return row.first.name; });
    return apps;
}

/// The catalogue's record of an application that was found at `path`.
ApplicationInfo DatabaseManager::describe(std::string title, std::string bundleID, const MacPath& path) const {
    const bool isIOS = isIOSApp(path);
    const bool isListed = m_unsupported.contains(bundleID);
    const bool isStandard = isStandardLocation(path);
    if (isIOS)
        log("Found iOS app: " + title + " at " + path.string());
    if (isListed)
        log("Found bundle ID unsupported app: " + title + " with bundle ID: " + bundleID);
    if (!isStandard)
        log("Found non-standard location app: " + title + " at " + path.string());

    ApplicationInfo app;
    app.id = makeUUID(m_mac.random);
    app.icon = AppIcon(path, [&icons = m_icons](const MacPath& bundle) { return icons.appIcon(bundle); });
    app.path = isWrapperPath(path) ? originalAppPath(path).value_or(path) : path;
    app.name = std::move(title);
    app.bundleID = std::move(bundleID);
    app.isIOSApp = isIOS;
    app.isUnsupportedApp = isListed || !isStandard;
    return app;
}

/// All in one write. A wrapper's row that is known stays known; and when it is the wrapper's row that carries
/// the flag, after a swap, what is recorded about the original stays as it is.
void DatabaseManager::recordHiddenApps(const std::vector<HiddenRow>& rows) {
    if (rows.empty())
        return;
    const auto known = m_settings.getAllHiddenFlagApps();
    std::vector<std::pair<std::string, HiddenFlagApp>> apps;
    for (const HiddenRow& row : rows) {
        if (row.isWrapper)
            continue;
        const auto earlier = known.find(row.bundleID);
        const bool isSameRow = earlier != known.end() && earlier->second.originalRowID == row.rowID;
        apps.push_back(
            {row.bundleID,
             {row.flags, row.rowID, isSameRow ? earlier->second.tavrikRowID : std::nullopt, true, {}}});
    }
    m_settings.saveHiddenFlagApps(apps);
    for (const HiddenRow& row : rows)
        log("📌 Detected hidden flag app: " + row.bundleID +
            " with rowID: " + std::to_string(static_cast<std::int64_t>(row.rowID)));
}

std::vector<DatabaseAppEntry> DatabaseManager::appEntries(const std::string& forBundleID) {
    auto connection = openDatabase(m_mac.volume, launchpadDatabasePath(), sqlite::OpenMode::readWriteCreate);
    if (!connection)
        return {};
    auto rows = connection->prepare(kEntries);
    if (!rows)
        return {};
    rows.bind(1, std::string_view(forBundleID));
    std::vector<DatabaseAppEntry> entries;
    sqlite::Step step = rows.step();
    for (; step == sqlite::Step::row; step = rows.step()) {
        auto bookmark = rows.blob(4);
        const auto rowID = rows.int64(0);
        if (bookmark && rowID)
            entries.push_back({RowID{*rowID}, rows.int32(1), RowID{rows.int64(2).value_or(0)},
                               rows.int32(3).value_or(0), std::move(*bookmark)});
    }
    return step == sqlite::Step::done ? entries : std::vector<DatabaseAppEntry>();
}

bool DatabaseManager::swapItemPlacement(RowID rowID, RowID withRowID) {
    if (rowID == withRowID) {
        log("Database swap refused: row " + std::to_string(static_cast<std::int64_t>(rowID)) +
            " cannot change places with itself");
        return false;
    }
    auto connection = openDatabase(m_mac.volume, launchpadDatabasePath(), sqlite::OpenMode::readWriteCreate);
    if (!connection)
        return false;
    if (const auto error = swapPlacements(*connection, rowID, withRowID)) {
        log("Database swap failed, rolled back: " + *error);
        return false;
    }
    return true;
}

std::optional<ItemPlacement> DatabaseManager::placement(RowID rowID) {
    auto connection = openDatabase(m_mac.volume, launchpadDatabasePath(), sqlite::OpenMode::readWrite);
    return connection ? readPlacement(*connection, rowID) : std::nullopt;
}

std::optional<std::vector<std::string>> DatabaseManager::missingColumns() {
    auto connection = openDatabase(m_mac.volume, launchpadDatabasePath(), sqlite::OpenMode::readWrite);
    if (!connection)
        return std::nullopt;
    const std::array<Table, 4> needed{{
        {"items", {"flags", "parent_id", "ordering"}},
        {"apps", {"item_id", "title", "bundleid", "bookmark"}},
        {"groups", {"item_id", "title"}},
        {"dbinfo", {"key", "value"}},
    }};
    std::vector<std::string> missing;
    for (const Table& table : needed) {
        auto info = connection->prepare(std::string("PRAGMA table_info(") + table.name + ")");
        if (!info)
            return std::nullopt;
        std::vector<QString> present;
        sqlite::Step step = info.step();
        for (; step == sqlite::Step::row; step = info.step())
            present.push_back(QString::fromStdString(info.text(1).value_or("")));
        if (step == sqlite::Step::failed)
            return std::nullopt;
        for (const char* column : table.columns) {
            const auto isColumn = [column](const QString& name) {
                return name.compare(QLatin1String(column), Qt::CaseInsensitive) == 0;
            };
            if (std::none_of(present.begin(), present.end(), isColumn))
                missing.push_back(std::string(table.name) + "." + column);
        }
    }
    return missing;
}

bool DatabaseManager::isWritable() {
    auto connection = openDatabase(m_mac.volume, launchpadDatabasePath(), sqlite::OpenMode::readWrite);
    return connection && sqlite::Transaction(*connection, "BEGIN EXCLUSIVE TRANSACTION").isOpen();
}

// What a path tells

bool DatabaseManager::isIOSApp(const MacPath& path) const {
    return path.string().find("/System/iOSSupport/") != std::string::npos ||
           m_mac.files.exists(path / "Wrapper");
}

bool DatabaseManager::isStandardLocation(const MacPath& path) const {
    const auto isStandard = [this](std::string_view text) {
        return text.starts_with("/Applications/") || text.starts_with("/System/") ||
               text.starts_with(m_home.string() + "/Applications/");
    };
    // Links are followed only where the path as it stands does not settle it already.
    if (isStandard(path.string()))
        return true;
    const auto resolved = m_mac.files.resolveLinks(path);
    return resolved && isStandard(resolved->string());
}

std::optional<MacPath> DatabaseManager::resolveBookmarkPath(ByteView bookmark) const {
    auto path = m_mac.bookmarks.resolve(bookmark);
    return path ? std::optional(std::move(*path)) : std::nullopt;
}

std::optional<MacPath> DatabaseManager::originalAppPath(const MacPath& forWrapperPath) const {
    const std::string name = forWrapperPath.stem() + ".app";
    for (const MacPath& folder : standardAppFolders(m_home)) {
        if (m_mac.files.exists(folder / name))
            return folder / name;
    }
    return std::nullopt;
}

} // namespace tavrik
