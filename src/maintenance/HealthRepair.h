#pragma once

#include "maintenance/HealthFinding.h"

#include <optional>
#include <string>
#include <vector>

namespace tavrik {

struct ApplyServices;

/// What became of the findings.
struct HealthRepair {
    struct Outcome {
        HealthFinding finding;
        bool isMended = false;
        std::string sentence; ///< what was done, or why nothing could be
    };

    std::vector<Outcome> outcomes;     ///< one for each finding that a repair is for, in their order
    std::optional<std::string> backup; ///< the snapshot that was taken before the first change, by name
    bool hasStaged = false;            ///< something is staged now and takes effect with the next apply
};

/// Mends the findings that a repair is for, by the ways in which the program itself removes, stages and writes;
/// takes a snapshot before it changes either store, and mends nothing in them when there is none. Icons of the
/// person's are never deleted. Restarts the Dock once when a store was changed. Background thread; seconds. The
/// program holds the support folder's lock and has taken up what was staged. Safe to repeat after a kill.
HealthRepair repairHealth(const ApplyServices& with, const std::vector<HealthFinding>& findings);

} // namespace tavrik
