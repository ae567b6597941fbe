#include "system/PlacementSwap.h"

#include "platform/Sqlite.h"

namespace tavrik {

namespace {

std::string errorText(std::string_view domain, int code, std::string_view description) {
    return "Error Domain=" + std::string(domain) + " Code=" + std::to_string(code) + " \"" +
           std::string(description) + "\"";
}

std::string swapError(int code, std::string_view description) {
    return errorText("DatabaseManager", code, description);
}

bool update(sqlite::Statement& statement, RowID row, const ItemPlacement& placement) {
    statement.reset();
    statement.bind(1, placement.flags);
    statement.bind(2, static_cast<std::int64_t>(placement.parentID));
    statement.bind(3, std::int64_t{placement.ordering});
    statement.bind(4, static_cast<std::int64_t>(row));
    return statement.step() == sqlite::Step::done;
}

} // namespace

std::optional<ItemPlacement> readPlacement(sqlite::Connection& connection, RowID row) {
    auto statement = connection.prepare("SELECT flags, parent_id, ordering FROM items WHERE rowid = ?");
    if (!statement)
        return std::nullopt;
    statement.bind(1, static_cast<std::int64_t>(row));
    if (statement.step() != sqlite::Step::row)
        return std::nullopt;
    return ItemPlacement{statement.int32(0), RowID{statement.int64(1).value_or(0)},
                         statement.int32(2).value_or(0)};
}

std::optional<std::string> swapPlacements(sqlite::Connection& connection, RowID first, RowID second) {
    sqlite::Transaction transaction(connection, "BEGIN EXCLUSIVE TRANSACTION");
    // Without an open transaction each statement below would be committed by itself.
    if (!transaction.isOpen() ||
        !connection.execute("UPDATE dbinfo SET value='1' WHERE key='ignore_items_update_triggers'"))
        return swapError(1, "Failed to disable triggers");

    const auto placementOfFirst = readPlacement(connection, first);
    const auto placementOfSecond = readPlacement(connection, second);
    if (!placementOfFirst || !placementOfSecond)
        return swapError(2, "Failed to read app data");

    // One statement serves both rows, so that either both updates are skipped or none is.
    if (auto statement =
            connection.prepare("UPDATE items SET flags = ?, parent_id = ?, ordering = ? WHERE rowid = ?")) {
        if (!update(statement, first, *placementOfSecond))
            return swapError(3, "Failed to update app1");
        if (!update(statement, second, *placementOfFirst))
            return swapError(4, "Failed to update app2");
    }

    if (!connection.execute("UPDATE dbinfo SET value='0' WHERE key='ignore_items_update_triggers'"))
        return swapError(5, "Failed to re-enable triggers");
    // Not by `commit`, whose rolling back makes SQLite forget what was wrong.
    if (!connection.execute("COMMIT"))
        return errorText("SQLite", connection.lastErrorCode(), connection.lastError());
    return std::nullopt;
}

} // namespace tavrik
