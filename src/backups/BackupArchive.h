#pragma once

#include "platform/Bytes.h"

#include <map>
#include <optional>
#include <string>

namespace tavrik {

/// The content of files by their names.
using ArchiveMembers = std::map<std::string, Bytes>;

/// Names of the two members of a backup.
inline constexpr const char* kDockMember = "com.apple.dock.plist";
inline constexpr const char* kLaunchpadMember = "launchpad.db";

/// A binary property list of one dictionary from file name to content, with room behind it for what a container
/// adds. Nothing, with a log line, on failure. Pure; any thread.
std::optional<Bytes> createArchive(const ArchiveMembers& members);

/// Nothing, with a log line, for what is no such list. Entries that are no data make it none.
std::optional<ArchiveMembers> extractArchive(ByteView archive);

} // namespace tavrik
