#pragma once

#include "backups/BackupContents.h"
#include "platform/Path.h"
#include "platform/Result.h"

#include <variant>

namespace tavrik {

struct Mac;

/// Why the live stores cannot go into a backup.
struct LiveStoresFault {
    Error error;                  ///< a sentence
    bool isNothingToKeep = false; ///< one is missing, empty or damaged: they are no state to come back to
};

/// The Dock's preferences read whole, and the Launchpad database with what its log holds; not checked. A store
/// that is missing, empty or no store at all is not found; one that cannot be read is a failure; either with
/// its log line. Writes nothing and never creates a file. Background thread; blocks on the disk.
std::variant<BackupContents, LiveStoresFault> readLiveStores(Mac& mac, const MacPath& dockPlist,
                                                             const MacPath& database);

/// For when what was made of the stores fails the check of a backup: whether they are damaged themselves. Reads
/// them anew, and logs what it finds.
LiveStoresFault whyUnsound(Mac& mac, const MacPath& dockPlist, const MacPath& database);

} // namespace tavrik
