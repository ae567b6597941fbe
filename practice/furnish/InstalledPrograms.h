#pragma once

#include "platform/Path.h"
#include "platform/Result.h"
#include "practice/furnish/Furnish.h"

namespace tavrik::practice {

/// Puts the programs of the build at their places on a volume, where they are missing or differ in size or
/// date. The system tools are one file under several names. A program that is running keeps running: the new
/// file takes its name in one step. `lock` is a file of the volume that programs take turns by.
Status installPrograms(const HostPath& root, const Programs& programs, const HostPath& lock);

} // namespace tavrik::practice
