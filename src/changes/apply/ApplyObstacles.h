#pragma once

#include <string>
#include <vector>

namespace tavrik {

struct ApplyServices;
struct ApplySnapshot;

/// What stands in the way of an apply, a sentence each that says what to do: what macOS refuses for privacy's
/// sake, and then that alone; columns that the Launchpad
/// database lacks, a database that is missing, damaged or locked, Dock preferences that cannot be read, a disk
/// that is too full, a wrapper or support folder that is a symbolic link. Empty when nothing does. Changes
/// nothing, but for a file that the check of access makes and removes. Background thread; blocks on the disk.
std::vector<std::string> obstaclesTo(const ApplyServices& with, const ApplySnapshot& snapshot);

} // namespace tavrik
