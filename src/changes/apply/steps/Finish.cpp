#include "changes/PendingChangesManager.h"
#include "changes/apply/ProgressOverlayManager.h"
#include "changes/apply/steps/Steps.h"
#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/MainQueue.h"
#include "platform/NotificationCenter.h"

#include <chrono>

using namespace std::chrono_literals;

namespace tavrik {

namespace {

constexpr auto kBeforeNotifying = 500ms;

} // namespace

Next finish(ApplyRun& run) {
    MainQueue::sync([&] { run.with.pendingChanges.noteApplied(); });
    run.with.progress.hide();
    return Next::goOn;
}

Next notify(ApplyRun& run) {
    run.with.mac.clock.sleep(kBeforeNotifying);
    MainQueue::sync([&] {
        run.with.notifications.post(kPendingChangesUpdated);
        if (const std::size_t failed = run.result.failedApps.size(); failed > 0)
            log("🔄 Forcing complete reload due to " + std::to_string(failed) + " failed app(s)");
        run.with.notifications.post(kReloadApplicationsAfterApply);
        run.with.notifications.post(kUpdateApplicationStateAfterApply);
    });
    return Next::goOn;
}

} // namespace tavrik
