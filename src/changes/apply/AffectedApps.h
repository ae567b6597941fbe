#pragma once

#include "model/ApplicationInfo.h"

#include <vector>

namespace tavrik {

struct ApplySnapshot;
struct Mac;

/// The running applications that must be closed before an apply, since their icons change. Those that the
/// system starts again at once are none of them, nor is the program itself. Any thread.
std::vector<ApplicationInfo> runningAffectedApps(const Mac& mac, const ApplySnapshot& snapshot);

} // namespace tavrik
