#pragma once

#include "remote/UpdateFeed.h"

#include <optional>
#include <vector>

namespace tavrik {

enum class UpdateVerdict {
    newest,       ///< there is none above this version
    available,    ///< there is one for this system
    systemTooOld, ///< there is one, for a newer macOS
    systemTooNew, ///< there is one, for an older macOS
};

struct UpdateFinding {
    UpdateVerdict verdict = UpdateVerdict::newest;
    std::optional<Release> release; ///< the one that the verdict speaks of

    bool operator==(const UpdateFinding&) const = default;
};

/// What the feed has for this version on this system: the highest release that runs here, else the highest of
/// all.
UpdateFinding findUpdate(const std::vector<Release>& feed, const ProgramVersion& current,
                         const SystemVersion& system);

} // namespace tavrik
