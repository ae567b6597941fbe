#pragma once

#include "maintenance/HealthFinding.h"

#include <vector>

namespace tavrik {

struct ApplyServices;

/// Looks at everything that the program has put into the Mac, and says what is not as it should be, the gravest
/// first. Changes nothing, so that it may run beside a program that writes; what that is in the middle of may
/// look unfinished then. Background thread; blocks on the disk for seconds where there are many backups.
std::vector<HealthFinding> checkHealth(const ApplyServices& with);

} // namespace tavrik
