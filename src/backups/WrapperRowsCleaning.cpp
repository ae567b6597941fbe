#include "backups/WrapperRowsCleaning.h"

#include "model/SettingsManager.h"
#include "platform/Bookmarks.h"
#include "platform/Log.h"
#include "platform/PathRules.h"
#include "platform/Sqlite.h"
#include "system/PlacementSwap.h"
#include "system/RowsPlacement.h"
#include "system/Trimmed.h"

namespace tavrik {

namespace {

constexpr const char* kBookmarks = "SELECT item_id, bundleid, bookmark FROM apps WHERE bookmark IS NOT NULL";
constexpr const char* kAppRow = "SELECT a.title, a.bundleid, a.bookmark FROM apps a JOIN items i ON i.rowid = "
                                "a.item_id WHERE a.item_id = ?";

constexpr const char* kPlacementUpdate = "    UPDATE items \n"
                                         "    SET flags = (SELECT flags FROM items WHERE rowid = ?),\n"
                                         "        parent_id = (SELECT parent_id FROM items WHERE rowid = ?),\n"
                                         "        ordering = (SELECT ordering FROM items WHERE rowid = ?)\n"
                                         "    WHERE rowid = ?";
constexpr const char* kItemRemoval = "DELETE FROM items WHERE rowid = ?";
constexpr const char* kAppRemoval = "DELETE FROM apps WHERE item_id = ?";

std::int64_t number(RowID row) {
    return static_cast<std::int64_t>(row);
}

} // namespace

WrapperRowsCleaning::WrapperRowsCleaning(sqlite::Connection& database, const Bookmarks& bookmarks,
                                         SettingsManager& settings)
    : m_database(database),
      m_bookmarks(bookmarks),
      m_settings(settings) {}

bool WrapperRowsCleaning::find() {
    auto rows = m_database.prepare(kBookmarks);
    if (!rows)
        return false;
    sqlite::Step step = rows.step();
    for (; step == sqlite::Step::row; step = rows.step()) {
        const auto row = rows.int64(0);
        const auto bookmark = rows.blobView(2);
        // Only a bookmark with the folder's name in it can lead there, and to resolve them all would take long.
        if (!row || !bookmark || textOf(*bookmark).find("Tavrik") == std::string_view::npos)
            continue;
        const Lead lead = leadOf(*bookmark);
        m_suspects.emplace(RowID{*row}, Suspect{trimmed(rows.text(1).value_or("")), lead});
        if (lead == Lead::toWrapper)
            m_wrappers.insert(RowID{*row});
    }
    if (step == sqlite::Step::failed)
        return false;

    for (const auto& [bundleID, record] : m_settings.getAllHiddenFlagApps()) {
        if (!record.tavrikRowID)
            continue;
        const Pair pair{record.originalRowID, *record.tavrikRowID};
        if (isPair(bundleID, pair))
            m_hiddenFlagApps.emplace(bundleID, pair);
    }
    return m_isReadable;
}

bool WrapperRowsCleaning::swapBack() {
    // As long as an exchange is recorded it is unfinished, and the rows alone tell how far it came.
    const auto unfinished = m_settings.getAllSwapRecords();
    for (const auto& [bundleID, record] : unfinished) {
        const Pair pair{record.originalRowID, record.tavrikRowID};
        if (!isPair(bundleID, pair))
            continue;
        m_wrappers.insert(pair.wrapper);
        const auto original = readPlacement(m_database, pair.original);
        const auto wrapper = readPlacement(m_database, pair.wrapper);
        if (!original || !wrapper)
            return false;
        const RowsState state = stateOf({*original, *wrapper}, record);
        if (state == RowsState::elsewhere)
            log("WARNING: The Launchpad rows of " + bundleID + " were moved since an unfinished swap");
        if (state == RowsState::exchanged && !copyPlacement(pair.wrapper, pair.original))
            return false;
    }
    for (const auto& [bundleID, mapping] : m_settings.getAllMappings()) {
        const Pair pair{mapping.originalRowID, mapping.tavrikRowID};
        if (unfinished.contains(bundleID) || !isPair(bundleID, pair))
            continue;
        m_wrappers.insert(pair.wrapper);
        if (!copyPlacement(pair.wrapper, pair.original))
            return false;
    }
    return m_isReadable;
}

std::optional<std::size_t> WrapperRowsCleaning::removeWrappers() {
    for (const auto& [bundleID, pair] : m_hiddenFlagApps)
        m_wrappers.erase(pair.wrapper);
    for (const RowID wrapper : m_wrappers)
        if (!execute(kItemRemoval, wrapper) || !execute(kAppRemoval, wrapper) || !removeDetails(wrapper))
            return std::nullopt;
    return m_wrappers.size();
}

std::optional<std::size_t> WrapperRowsCleaning::removeHiddenFlagWrappers() {
    log("  🔵 DEBUG: Found " + std::to_string(m_hiddenFlagApps.size()) + " hidden flag apps");
    for (const auto& [bundleID, pair] : m_hiddenFlagApps) {
        const auto original = appRow(pair.original);
        log("  🧹 Cleaning hidden flag tavrik app: " + (original ? original->title : bundleID));
        // The second statement gives the original back what the first one took from it: it stays where it is.
        if (!copyPlacement(pair.original, pair.wrapper) || !copyPlacement(pair.wrapper, pair.original) ||
            !execute(kItemRemoval, pair.wrapper) || !execute(kAppRemoval, pair.wrapper) ||
            !removeDetails(pair.wrapper))
            return std::nullopt;
    }
    return m_hiddenFlagApps.size();
}

WrapperRowsCleaning::Lead WrapperRowsCleaning::leadOf(ByteView bookmark) const {
    if (const auto path = m_bookmarks.resolve(bookmark))
        return isWrapperPath(*path) ? Lead::toWrapper : Lead::elsewhere;
    // The Dock keeps the row of a removed wrapper until it is started again.
    const auto gone = m_bookmarks.recordedPath(bookmark);
    return gone && isWrapperPath(*gone) ? Lead::toWrapper : Lead::nowhere;
}

std::optional<WrapperRowsCleaning::AppRow> WrapperRowsCleaning::appRow(RowID row) {
    auto select = m_database.prepare(kAppRow);
    if (select)
        select.bind(1, number(row));
    const sqlite::Step step = select ? select.step() : sqlite::Step::failed;
    m_isReadable = m_isReadable && step != sqlite::Step::failed;
    if (step != sqlite::Step::row)
        return std::nullopt;
    return AppRow{select.text(0).value_or(""), trimmed(select.text(1).value_or("")),
                  select.blob(2).value_or(Bytes())};
}

/// Whether these are an application's row and its wrapper's. A wrapper that is gone is known by the original
/// alone, which must be there then.
bool WrapperRowsCleaning::isPair(const std::string& bundleID, const Pair& rows) {
    const auto wrapper = m_suspects.find(rows.wrapper);
    if (rows.original == rows.wrapper || wrapper == m_suspects.end() || wrapper->second.bundleID != bundleID ||
        wrapper->second.lead == Lead::elsewhere || !appRow(rows.wrapper))
        return false;
    const auto original = appRow(rows.original);
    if (!original || original->bundleID != bundleID)
        return false;
    const auto suspect = m_suspects.find(rows.original);
    if (suspect != m_suspects.end())
        return suspect->second.lead == Lead::elsewhere;
    return wrapper->second.lead == Lead::toWrapper || leadOf(original->bookmark) == Lead::elsewhere;
}

/// Flags, parent and ordering.
bool WrapperRowsCleaning::copyPlacement(RowID from, RowID to) {
    auto update = m_database.prepare(kPlacementUpdate);
    if (!update)
        return false;
    for (const int parameter : {1, 2, 3})
        update.bind(parameter, number(from));
    update.bind(4, number(to));
    return update.step() == sqlite::Step::done;
}

bool WrapperRowsCleaning::execute(const char* sql, RowID row) {
    auto statement = m_database.prepare(sql);
    if (!statement)
        return false;
    statement.bind(1, number(row));
    return statement.step() == sqlite::Step::done;
}

/// What the database's own triggers would have removed with the item.
bool WrapperRowsCleaning::removeDetails(RowID wrapper) {
    for (const char* table : {"groups", "downloading_apps", "image_cache"}) {
        auto present = m_database.prepare("SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ?");
        if (!present)
            return false;
        present.bind(1, std::string_view(table));
        const sqlite::Step step = present.step();
        if (step == sqlite::Step::failed)
            return false;
        const std::string removal = "DELETE FROM " + std::string(table) + " WHERE item_id = ?";
        if (step == sqlite::Step::row && !execute(removal.c_str(), wrapper))
            return false;
    }
    return true;
}

} // namespace tavrik
