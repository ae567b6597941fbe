#include "maintenance/HealthCheck.h"

#include "maintenance/HealthChecks.h"
#include "maintenance/HealthLook.h"
#include "platform/Threads.h"

#include <algorithm>
#include <tuple>

namespace tavrik {

std::vector<HealthFinding> checkHealth(const ApplyServices& with) {
    assertOffMainThread("The health check");
    HealthLook look(with);
    checkStores(look);
    checkWrappers(look);
    checkTiles(look);
    checkTitles(look);
    checkIcons(look);
    checkFiles(look);
    checkBackups(look);
    // The kinds are in the order of their gravity.
    std::ranges::stable_sort(look.findings, {}, [](const HealthFinding& finding) {
        return std::tuple(finding.remedy == HealthFinding::Remedy::notNeeded, finding.kind);
    });
    return std::move(look.findings);
}

} // namespace tavrik
