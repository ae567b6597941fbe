#include "remote/UpdateCheck.h"

namespace tavrik {

namespace {

UpdateVerdict verdictOn(const Release& release, const SystemVersion& system) {
    if (release.minimumSystem && system < *release.minimumSystem)
        return UpdateVerdict::systemTooOld;
    if (release.maximumSystem && system > *release.maximumSystem)
        return UpdateVerdict::systemTooNew;
    return UpdateVerdict::available;
}

} // namespace

UpdateFinding findUpdate(const std::vector<Release>& feed, const ProgramVersion& current,
                         const SystemVersion& system) {
    UpdateFinding best;
    for (const Release& release : feed) {
        if (release.version <= current)
            continue;
        const UpdateVerdict verdict = verdictOn(release, system);
        const bool runs = verdict == UpdateVerdict::available;
        const bool bestRuns = best.verdict == UpdateVerdict::available;
        if (!best.release || (runs && !bestRuns) ||
            (runs == bestRuns && release.version > best.release->version))
            best = {.verdict = verdict, .release = release};
    }
    return best;
}

} // namespace tavrik
