#pragma once

#include "backups/BackupContainer.h"
#include "platform/Bytes.h"
#include "platform/FileManager.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>

namespace tavrik {

/// The content of files by their names.
using ArchiveMembers = std::map<std::string, Bytes>;

/// Names of the two members of a backup.
inline constexpr const char* kDockMember = "com.apple.dock.plist";
inline constexpr const char* kLaunchpadMember = "launchpad.db";

/// The most that an archive may hold, 1 GiB with its container.
inline constexpr std::size_t kLargestArchive =
    FileManager::kLargestRead - BackupContainer::kOverhead; ///< bytes

/// A binary property list of one dictionary from file name to content, with room behind it for what a container
/// adds; members that are moved in are copied once. Nothing, with a log line, on failure. Pure; any thread.
std::optional<Bytes> createArchive(ArchiveMembers members);

/// Nothing, with a log line, for what is no such list. Entries that are no data make it none.
std::optional<ArchiveMembers> extractArchive(ByteView archive);

} // namespace tavrik
