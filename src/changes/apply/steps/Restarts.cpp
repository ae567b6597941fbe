#include "changes/apply/steps/Steps.h"
#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "system/LaunchpadManager.h"

#include <chrono>

using namespace std::chrono_literals;

namespace tavrik {

namespace {

constexpr auto kAfterRestartInBetween = 3000ms;

void restart(ApplyRun& run) {
    run.report("Restarting Dock...");
    run.with.launchpad.restartDock();
    run.stepsDone += 1;
}

} // namespace

Next restartInBetween(ApplyRun& run) {
    if (!run.changedWrappers || !run.needsFontOperation())
        return Next::goOn;
    log("\n=== INTERMEDIATE RESTART ===");
    restart(run);
    run.with.mac.clock.sleep(kAfterRestartInBetween);
    log("=== INTERMEDIATE RESTART COMPLETE ===");
    return Next::goOn;
}

Next restartAtTheEnd(ApplyRun& run) {
    if (run.changedWrappers || run.changedTitles) {
        log("\n=== FINAL DOCK RESTART ===");
        restart(run);
    } else {
        log("\n=== NO FINAL RESTART NEEDED ===");
    }
    log("\n=== ALL PENDING CHANGES APPLIED ===\n");
    return Next::goOn;
}

} // namespace tavrik
