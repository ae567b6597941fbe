#pragma once

#include "model/SettingsRecords.h"

#include <optional>
#include <string>

namespace tavrik {

namespace sqlite {
class Connection;
}

/// Where a row stands; nothing when there is no such row or it cannot be read. A NULL `flags` stays nothing.
std::optional<ItemPlacement> readPlacement(sqlite::Connection& connection, RowID row);

/// Exchanges flags, parent and ordering of two rows in one exclusive transaction, with the database's update
/// triggers switched off inside it. Nothing when it is done; otherwise the error in words for the log, and
/// everything rolled back. Fails at once when another process holds the database.
std::optional<std::string> swapPlacements(sqlite::Connection& connection, RowID first, RowID second);

} // namespace tavrik
