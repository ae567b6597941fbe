#include "changes/apply/steps/Steps.h"
#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/Mac.h"

#include <chrono>

using namespace std::chrono_literals;

namespace tavrik {

namespace {

/// The Dock that has just been started may hold its database for a moment.
constexpr int kMostTries = 8;
constexpr auto kBetweenTries = 500ms;

Result<ApplyStores> readBack(const ApplyRun& run) {
    auto stores = readApplyStores(run.with, run.snapshot);
    for (int tries = 1; !stores && tries < kMostTries; ++tries) {
        run.with.mac.clock.sleep(kBetweenTries);
        stores = readApplyStores(run.with, run.snapshot);
    }
    return stores;
}

} // namespace

Next audit(ApplyRun& run) {
    const auto after = readBack(run);
    if (!after) {
        log("⚠️ The stores could not be read back: " + after.error().description);
        return Next::goOn;
    }
    std::set<std::string> failed;
    for (const ApplyResult::FailedApp& app : run.result.failedApps)
        failed.insert(app.bundleID);
    run.result.deviations = deviationsFrom(run.plan, run.before, *after, failed);
    run.result.isAudited = true;
    for (const Deviation& deviation : run.result.deviations)
        log("⚠️ Not as planned: " + deviation.sentence);
    return Next::goOn;
}

} // namespace tavrik
