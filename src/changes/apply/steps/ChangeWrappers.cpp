#include "changes/apply/steps/Steps.h"
#include "icons/IconCache.h"
#include "model/SettingsManager.h"
#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "system/LaunchpadManager.h"
#include "wrappers/TavrikAppManager.h"

#include <chrono>
#include <vector>

using namespace std::chrono_literals;

namespace tavrik {

namespace {

constexpr auto kBeforeWrappers = 500ms;

using Group = std::vector<const ApplyTask*>;

struct Groups {
    Group updated;
    Group removed;
    Group created;
};

std::string text(std::size_t count) {
    return std::to_string(count);
}

Groups groupsOf(ApplyRun& run) {
    Groups groups;
    for (const ApplyTask& task : run.snapshot.tasks) {
        if (run.hasFailed(task.app.bundleID))
            continue;
        if (!task.isInstalled) {
            run.fail(task.app, "Launchpad does not know it. Its icons are kept.");
            continue;
        }
        // What stands in no group has nothing to be done in Launchpad.
        switch (wrapperWork(appStateOf(run.with, task.app), run.chosenIcons.contains(task.app.bundleID))) {
        case WrapperWork::none:
            break;
        case WrapperWork::update:
            groups.updated.push_back(&task);
            break;
        case WrapperWork::remove:
            groups.removed.push_back(&task);
            break;
        case WrapperWork::create:
            groups.created.push_back(&task);
            break;
        }
    }
    return groups;
}

/// Null when it cannot be read.
QImage chosenImage(const ApplyRun& run, const ApplyTask& task) {
    if (const auto image = run.themeImages.find(task.app.bundleID); image != run.themeImages.end())
        return image->second;
    return run.with.iconCache.loadImage(run.chosenIcons.at(task.app.bundleID));
}

void begin(ApplyRun& run) {
    run.report(run.magicPhrase());
    run.stepsDone += 0.5;
}

void update(ApplyRun& run, const Group& group) {
    if (!group.empty())
        log("\n=== UPDATING " + text(group.size()) + " EXISTING TAVRIK ICONS ===");
    for (const ApplyTask* task : group) {
        begin(run);
        log("  - Updating icon for " + task->app.name);
        const QImage image = chosenImage(run, *task);
        if (image.isNull() || !run.with.wrappers.setWrapperIcon(task->app, image)) {
            // Else choosing the new one again would seem to change nothing.
            run.with.settings.setSelectedIcon(task->app.bundleID, run.earlierIcons[task->app.bundleID]);
            run.fail(task->app, "Its new icon could not be set.");
        }
        run.changedWrappers = true;
    }
}

void remove(ApplyRun& run, const Group& group) {
    if (!group.empty())
        log("\n=== REMOVING " + text(group.size()) + " TAVRIK APPS ===");
    for (const ApplyTask* task : group) {
        begin(run);
        log("  - Reverting " + task->app.name);
        if (!run.with.wrappers.removeWrapper(task->app, RestartDock::no))
            run.fail(task->app, "Not all of its own look could be brought back; the log says what.");
        run.changedWrappers = true;
    }
}

/// The application is as it was, and so is what the settings say of it. Its icons stay in its row.
void putBack(ApplyRun& run, const ApplicationInfo& app) {
    if (run.with.wrappers.isUnfinished(app.bundleID))
        ignoreFailure(run.with.wrappers.removeWrapper(app, RestartDock::no));
    if (run.with.settings.getSelectedIcon(app.bundleID))
        run.with.settings.setSelectedIcon(app.bundleID, std::nullopt);
}

void create(ApplyRun& run, const Group& group) {
    if (group.empty())
        return;
    log("\n=== CREATING " + text(group.size()) + " NEW TAVRIK APPS ===");
    Group built;
    for (const ApplyTask* task : group) {
        begin(run);
        log("  - Creating tavrik app for " + task->app.name);
        // The mapping of a wrapper that is gone stands for nothing.
        run.with.wrappers.refreshWrapper(task->app);
        const QImage image = chosenImage(run, *task);
        if (image.isNull() || !run.with.wrappers.batchCreateWrapper(task->app, image)) {
            putBack(run, task->app);
            run.fail(task->app,
                     image.isNull() ? "Its icon could not be read." : "Its wrapper could not be built.");
            continue;
        }
        built.push_back(task);
    }
    run.changedWrappers = true;

    log("\nCompleting batch creation...");
    run.with.launchpad.restartDock();
    for (const ApplyTask* task : built) {
        run.report(run.magicPhrase());
        if (run.with.wrappers.completeCreation(task->app)) {
            run.createdWrappers = true;
            continue;
        }
        log("  ⚠️ Failed to complete tavrik creation for " + task->app.name + ", reverting to original");
        putBack(run, task->app);
        run.fail(task->app, "Launchpad did not take its wrapper in, so it looks as before.");
    }
}

} // namespace

Next changeWrappers(ApplyRun& run) {
    if (run.snapshot.tasks.empty())
        return Next::goOn;
    run.with.mac.clock.sleep(kBeforeWrappers);
    const Groups groups = groupsOf(run);
    update(run, groups.updated);
    remove(run, groups.removed);
    create(run, groups.created);
    if (const std::size_t failed = run.result.failedApps.size(); failed > 0)
        log("\n⚠️ APPLY SUMMARY: Failed to theme " + text(failed) + " app(s)");
    return Next::goOn;
}

} // namespace tavrik
