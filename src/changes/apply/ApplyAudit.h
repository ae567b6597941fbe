#pragma once

#include "changes/apply/ApplyPlan.h"

#include <string>
#include <vector>

namespace tavrik {

/// Something that is not as it was planned.
struct Deviation {
    std::string bundleID; ///< empty when it belongs to no application
    std::string sentence;

    bool operator==(const Deviation&) const = default;
};

/// What was planned and did not come about, and what came about unplanned. Of applications that failed, which
/// were put back, nothing is expected and everything is let pass: they are reported as failed. Pure.
std::vector<Deviation> deviationsFrom(const ApplyPlan& plan, const ApplyStores& before,
                                      const ApplyStores& after, const std::set<std::string>& failedApps);

} // namespace tavrik
