#include "changes/apply/ProgressOverlayManager.h"
#include "changes/apply/steps/Steps.h"
#include "icons/IconStore.h"
#include "platform/Log.h"

namespace tavrik {

Next report(ApplyRun& run) {
    for (const ApplyTask& task : run.snapshot.tasks)
        log("📊 PRE-APPLY: " + task.app.name + " has " +
            std::to_string(run.with.icons.listIcons(task.app.bundleID).size()) + " permanent icons");
    log("\n=== APPLYING PENDING CHANGES ===");
    log("Icon changes: " + std::to_string(run.snapshot.tasks.size()));
    log(std::string("Font operation: ") + (run.snapshot.hasFontOperation() ? "true" : "false"));
    log("Theme icon hides: " + std::to_string(run.snapshot.changes.pendingThemeIconHides.size()));
    log("Active font to re-apply: " + run.snapshot.activeFont.value_or("none"));
    return Next::goOn;
}

Next countSteps(ApplyRun& run) {
    const std::size_t steps = run.snapshot.tasks.size() + (run.plan.changesTitles ? 1U : 0U) +
                              (run.plan.restartsBetween ? 1U : 0U) + (run.plan.restartsAtEnd ? 1U : 0U);
    log("Total steps calculated: " + std::to_string(steps));
    run.with.progress.setTotalSteps(static_cast<double>(steps));
    return Next::goOn;
}

} // namespace tavrik
