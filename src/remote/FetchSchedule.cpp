#include "remote/FetchSchedule.h"

#include <algorithm>
#include <cmath>

namespace tavrik {

namespace {

constexpr double kHour = 3600; ///< seconds
constexpr double kDay = 24 * kHour;

bool hasPassed(Date since, double seconds, Date now) {
    return since > now || now.sinceReference >= since.sinceReference + seconds;
}

} // namespace

bool isFetchDue(const FetchHistory& history, Date now) {
    if (history.failed && history.failures > 0)
        return hasPassed(*history.failed, std::min(std::exp2(history.failures - 1) * kHour, kDay), now);
    return !history.answered || hasPassed(*history.answered, kDay, now);
}

} // namespace tavrik
