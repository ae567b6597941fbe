#pragma once

#include "platform/Result.h"
#include "platform/Sqlite.h"

namespace tavrik {

class DatabaseManager;
struct Mac;

/// What the Launchpad database holds now, to look into: a copy in memory, so that the Dock is never kept
/// waiting. An error, in a sentence, when it cannot be read. Background thread; blocks on the disk.
Result<sqlite::Connection> openLaunchpadCopy(const Mac& mac, const DatabaseManager& database);

} // namespace tavrik
