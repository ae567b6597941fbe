#pragma once

#include "platform/Bytes.h"
#include "platform/FileManager.h"

#include <optional>

/// Custom icons as a Mac stores them on a foreign volume: for a folder F an empty file "Icon\r" in it, whose
/// AppleDouble companion "._Icon\r" holds the resource fork with one 'icns' resource, and the custom-icon flag
/// in the Finder info of F's own companion "._F" beside it. For a plain file both are in its companion.
namespace tavrik::practice {

/// Stores an icon container. A failure may leave the icon without the flag, which the Mac ignores.
Status writeCustomIcon(FileManager& files, const MacPath& path, ByteView icns);

/// Nothing when there is no custom icon: the flag and the resource must both be there.
std::optional<Bytes> readCustomIcon(const FileManager& files, const MacPath& path);

/// Fine when there is none.
Status removeCustomIcon(FileManager& files, const MacPath& path);

/// The Finder info of a path, 32 bytes; nothing when it has none.
std::optional<Bytes> readFinderInfo(const FileManager& files, const MacPath& path);
/// `info` must be 32 bytes; all zeros removes it.
Status writeFinderInfo(FileManager& files, const MacPath& path, ByteView info);

} // namespace tavrik::practice
