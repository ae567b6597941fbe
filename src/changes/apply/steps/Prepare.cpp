#include "changes/PendingChangesManager.h"
#include "changes/apply/ApplyObstacles.h"
#include "changes/apply/ProgressOverlayManager.h"
#include "changes/apply/SelectedIcon.h"
#include "changes/apply/steps/Steps.h"
#include "fonts/FontManager.h"
#include "platform/MainQueue.h"

namespace tavrik {

namespace {

Next refuse(ApplyRun& run, std::vector<std::string> reasons) {
    run.result.end = ApplyResult::End::refused;
    run.result.reasons = std::move(reasons);
    return Next::stop;
}

} // namespace

Next prepare(ApplyRun& run) {
    bool isStaged = false;
    bool isSaved = false;
    StagedChanges staged;
    MainQueue::sync([&] {
        isStaged = run.with.pendingChanges.hasPendingChanges();
        if (!isStaged)
            return;
        run.with.progress.show(run.parentWindow, 0);
        run.report("Getting ready...");
        isSaved = run.with.pendingChanges.savePendingChangesToTempFile();
        staged = run.with.pendingChanges.staged();
    });
    if (!isStaged) {
        run.result.end = ApplyResult::End::nothingStaged;
        return Next::stop;
    }
    if (!isSaved)
        return refuse(
            run, {"What is staged could not be written to its recovery file, so that a crash could lose it. "
                  "See that there is space on the disk, and try again."});

    run.snapshot = takeSnapshot(run.with, staged);
    if (auto obstacles = obstaclesTo(run.with, run.snapshot); !obstacles.empty())
        return refuse(run, std::move(obstacles));
    auto stores = readApplyStores(run.with, run.snapshot);
    if (!stores)
        return refuse(run, {stores.error().description});
    run.before = std::move(*stores);
    run.plan = planOf(run.snapshot, run.before, run.with.fonts.fontReplacer());

    for (const ApplyTask& task : run.snapshot.tasks) {
        if (task.themeIcon)
            run.themeImages.emplace(task.app.bundleID, readThemeIcon(run.with, *task.themeIcon));
    }
    return Next::goOn;
}

} // namespace tavrik
