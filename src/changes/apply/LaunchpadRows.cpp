#include "changes/apply/LaunchpadRows.h"

#include "changes/apply/ApplyServices.h"
#include "platform/Bookmarks.h"
#include "platform/Mac.h"
#include "platform/Sqlite.h"
#include "platform/Volume.h"
#include "system/DatabaseManager.h"

#include <QString>

#include <utility>

namespace tavrik {

namespace {

/// Ties within a parent, which are legal in the file, stand in the order of their rows.
constexpr const char* kRows =
    "SELECT i.rowid, i.flags, i.parent_id, i.ordering, a.item_id, a.title, a.bundleid, a.bookmark, g.title "
    "FROM items i LEFT JOIN apps a ON a.item_id = i.rowid LEFT JOIN groups g ON g.item_id = i.rowid "
    "ORDER BY i.parent_id, i.ordering, i.rowid";

Error unreadable(const std::string& why) {
    return Error{"The Launchpad database cannot be read: " + why +
                 ". Close other programs that use it, and try again."};
}

} // namespace

Result<std::vector<LaunchpadRow>> readLaunchpadRows(const ApplyServices& with) {
    const HostPath file = with.mac.volume.hostPath(with.database.launchpadDatabasePath());
    // A missing database is not created.
    auto database = file.empty() ? std::nullopt : sqlite::Connection::open(file, sqlite::OpenMode::readWrite);
    if (!database)
        return unreadable("it is not there");
    auto statement = database->prepare(kRows);
    if (!statement)
        return unreadable(database->lastError());
    std::vector<LaunchpadRow> rows;
    sqlite::Step step = statement.step();
    for (; step == sqlite::Step::row; step = statement.step()) {
        LaunchpadRow row;
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

} // namespace tavrik
