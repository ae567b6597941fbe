#include "changes/apply/LaunchpadReading.h"

#include "changes/apply/ApplyServices.h"
#include "changes/apply/ApplyStores.h"
#include "model/SettingsManager.h"
#include "platform/Bookmarks.h"
#include "platform/Mac.h"
#include "platform/PathRules.h"
#include "platform/Sqlite.h"
#include "platform/Volume.h"
#include "system/DatabaseManager.h"
#include "system/RowsPlacement.h"

#include <QString>

#include <map>
#include <set>
#include <vector>

namespace tavrik {

namespace {

/// Ties within a parent, which are legal in the file, stand in the order of their rows.
constexpr const char* kRows =
    "SELECT i.rowid, i.flags, i.parent_id, i.ordering, a.item_id, a.title, a.bundleid, a.bookmark, g.title "
    "FROM items i LEFT JOIN apps a ON a.item_id = i.rowid LEFT JOIN groups g ON g.item_id = i.rowid "
    "ORDER BY i.parent_id, i.ordering, i.rowid";

struct Row {
    RowID number{};
    ItemPlacement placement;
    bool isApp = false;
    std::optional<std::string> title; ///< of an application or a group
    std::string bundleID;
    bool hasBookmark = false;
    MacPath path; ///< empty when its bookmark leads nowhere
    MacPath gone; ///< where it led then
};

Error unreadable(const std::string& why) {
    return Error{"The Launchpad database cannot be read: " + why +
                 ". Close other programs that use it, and try again."};
}

Result<std::vector<Row>> readRows(const ApplyServices& with) {
    const HostPath file = with.mac.volume.hostPath(with.database.launchpadDatabasePath());
    // A missing database is not created.
    auto database = file.empty() ? std::nullopt : sqlite::Connection::open(file, sqlite::OpenMode::readWrite);
    if (!database)
        return unreadable("it is not there");
    auto statement = database->prepare(kRows);
    if (!statement)
        return unreadable(database->lastError());
    std::vector<Row> rows;
    sqlite::Step step = statement.step();
    for (; step == sqlite::Step::row; step = statement.step()) {
        Row row;
        row.number = RowID{statement.int64(0).value_or(0)};
        row.placement = {statement.int32(1), RowID{statement.int64(2).value_or(0)},
                         statement.int32(3).value_or(0)};
        row.isApp = statement.int64(4).has_value();
        row.title = statement.text(row.isApp ? 5 : 8);
        row.bundleID = QString::fromStdString(statement.text(6).value_or("")).trimmed().toStdString();
        if (const auto bookmark = statement.blob(7)) {
            row.hasBookmark = true;
            if (const auto path = with.mac.bookmarks.resolve(*bookmark))
                row.path = *path;
            else if (const auto recorded = with.mac.bookmarks.recordedPath(*bookmark))
                row.gone = *recorded;
        }
        rows.push_back(std::move(row));
    }
    return step == sqlite::Step::done ? Result(std::move(rows)) : unreadable(database->lastError());
}

/// The rows of applications whose place their wrapper holds, with the wrapper's.
class Exchanges {
public:
    Exchanges(SettingsManager& settings, const std::vector<Row>& rows) {
        for (const Row& row : rows)
            m_rows.emplace(row.number, &row);
        const auto records = settings.getAllSwapRecords();
        for (const auto& [bundleID, mapping] : settings.getAllMappings()) {
            if (!records.contains(bundleID))
                add(bundleID, mapping.originalRowID, mapping.tavrikRowID);
        }
        for (const auto& [bundleID, record] : records) {
            const Row* original = rowOf(bundleID, record.originalRowID);
            const Row* wrapper = rowOf(bundleID, record.tavrikRowID);
            if (original && wrapper &&
                stateOf({original->placement, wrapper->placement}, record) == RowsState::exchanged)
                add(bundleID, record.originalRowID, record.tavrikRowID);
        }
    }

    /// What is shown in the place of this original.
    const Row& shownFor(const Row& original) const {
        const auto wrapper = m_wrapperOf.find(original.number);
        return wrapper == m_wrapperOf.end() ? original : *wrapper->second;
    }

    bool isExchangedWrapper(const Row& row) const { return m_wrappers.contains(row.number); }

private:
    /// A rebuilt database may have given the number to another item.
    const Row* rowOf(const std::string& bundleID, RowID number) const {
        const auto row = m_rows.find(number);
        return row != m_rows.end() && row->second->isApp && row->second->bundleID == bundleID ? row->second
                                                                                              : nullptr;
    }

    void add(const std::string& bundleID, RowID original, RowID wrapper) {
        const Row* row = rowOf(bundleID, wrapper);
        if (!rowOf(bundleID, original) || !row || original == wrapper)
            return;
        m_wrapperOf.emplace(original, row);
        m_wrappers.insert(wrapper);
    }

    std::map<RowID, const Row*> m_rows;
    std::map<RowID, const Row*> m_wrapperOf;
    std::set<RowID> m_wrappers;
};

} // namespace

Status readLaunchpad(const ApplyServices& with, ApplyStores& stores) {
    const auto rows = readRows(with);
    if (!rows)
        return rows.error();
    const Exchanges exchanges(with.settings, *rows);

    std::set<std::string> found; // identifiers of what is really there
    for (const Row& row : *rows) {
        if (!row.path.empty() && !isWrapperPath(row.path))
            found.insert(row.bundleID);
    }

    std::map<RowID, RowID> shownRowOf; // an original's
    for (const Row& row : *rows) {
        if (!row.isApp || exchanges.isExchangedWrapper(row))
            continue;
        // The Dock has not dropped the row of a removed wrapper yet.
        if (row.path.empty() && (isWrapperPath(row.gone) || found.contains(row.bundleID)))
            continue;
        if (isWrapperPath(row.path)) {
            stores.strayWrapperRows.insert(row.bundleID);
            continue;
        }
        const Row& visible = exchanges.shownFor(row);
        stores.apps.emplace(row.number, ApplyStores::ShownApp{.bundleID = row.bundleID,
                                                              .title = visible.title,
                                                              .originalTitle = row.title,
                                                              .original = row.path,
                                                              .shown = visible.path,
                                                              .gone = visible.gone,
                                                              .isRetitled = visible.hasBookmark,
                                                              .page = visible.placement.parentID});
        shownRowOf.emplace(visible.number, row.number);
    }

    // Places count what a person sees, so that the other row of a pair moves nobody.
    std::map<RowID, int> next;
    for (const Row& row : *rows) {
        const auto original = shownRowOf.find(row.number);
        const bool isFolder = !row.isApp && row.title && !row.title->empty();
        if (original != shownRowOf.end())
            stores.apps.at(original->second).place = next[row.placement.parentID]++;
        else if (isFolder)
            ++next[row.placement.parentID];
        if (isFolder)
            stores.folders.emplace(row.number, *row.title);
    }
    return Done{};
}

} // namespace tavrik
