#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tavrik {

struct Managers;

/// The plain names that a styled alphabet is written over.
struct UserNames {
    std::vector<std::string> apps;    ///< by name
    std::vector<std::string> folders; ///< in the order of Launchpad

    bool operator==(const UserNames&) const = default;
};

/// Empty lists where a store cannot be read. Background thread; blocks on the disk.
UserNames readUserNames(Managers& with);

/// A few names to show a styled alphabet on: short ones of plain letters that begin differently, the last one a
/// folder's where there is such a one. Pure.
std::vector<std::string> sampleNames(const UserNames& names, std::size_t count);

} // namespace tavrik
