#pragma once

#include "platform/Path.h"

#include <cstddef>
#include <cstdint>

namespace tavrik {

struct ApplyServices;

/// What the program keeps for itself, so that a person can decide about it. Sizes are in bytes.
struct Belongings {
    std::uint64_t iconBytes = 0;
    std::size_t themes = 0;
    std::uint64_t themeBytes = 0;
    std::size_t backups = 0;
    std::uint64_t backupBytes = 0;
    MacPath folder;          ///< that holds all of it
    std::uint64_t bytes = 0; ///< of the whole folder
};

/// What cannot be looked at counts as nothing. Changes nothing. Background thread; blocks on the disk.
Belongings readBelongings(const ApplyServices& with);

} // namespace tavrik
