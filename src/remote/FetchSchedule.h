#pragma once

#include "platform/Date.h"

#include <optional>

namespace tavrik {

/// What is remembered of a service's requests.
struct FetchHistory {
    std::optional<Date> answered; ///< when the last good answer came, a "not modified" included
    std::optional<Date> failed;   ///< when the last request failed, if that is newer
    int failures = 0;             ///< since the last good answer

    bool operator==(const FetchHistory&) const = default;
};

/// Whether a request is due: 24 hours after a good answer, and 1, 2, 4 ... at most 24 hours after a failed
/// request. At once where there is neither, and where the moment lies in the future, since the clock was wrong
/// then or is now.
bool isFetchDue(const FetchHistory& history, Date now);

} // namespace tavrik
