#pragma once

#include "platform/Path.h"

#include <string>

namespace tavrik {

class FileManager;

/// What the links in a wrapper's bundle lead to.
enum class WrapperLinks {
    sound,      ///< or to a volume that is not mounted now, which says nothing
    nowhere,    ///< the application that they lead to is gone, or lies in the Trash
    elsewhere,  ///< to another application
    incomplete, ///< not to each entry of the application's bundle, or to one that is gone
    foreign,    ///< the bundle holds what no wrapper holds: files of its own
};

/// Entries that the Finder and other volumes put into bundles, and a custom icon, count as nothing. Reads
/// folders and one small file; changes nothing.
WrapperLinks linksOf(const FileManager& files, const MacPath& wrapper, const std::string& bundleID);

/// Trimmed; empty when it cannot be read.
std::string bundleIdentifierOf(const FileManager& files, const MacPath& bundle);

} // namespace tavrik
