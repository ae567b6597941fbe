#include "changes/apply/steps/Steps.h"
#include "icons/IconFiles.h"
#include "icons/IconStore.h"
#include "icons/IconTransfer.h"
#include "model/SettingsManager.h"
#include "platform/Log.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace tavrik {

namespace {

/// Where the chosen icon of an application stands now, and its number. Neither when none is chosen, or when it
/// is lost.
struct Chosen {
    std::optional<MacPath> path;
    std::optional<std::int64_t> number;
};

Chosen chosenOf(const ApplyRun& run, const ApplyTask& task, const IconTransfer::Places& places) {
    if (!task.wantsIcon())
        return {};
    const auto index = static_cast<std::size_t>(*task.change.selectedIndex);
    if (index < task.change.iconPaths.size()) {
        const auto place = index < places.size() ? places[index] : std::nullopt;
        return place ? Chosen{place, iconIndex(place->name())} : Chosen{};
    }
    // A theme's icons are numbered on from the application's own ones.
    const std::size_t behind = index - task.change.iconPaths.size();
    const std::size_t count = run.with.icons.listIcons(task.app.bundleID).size();
    return task.themeIcon ? Chosen{task.themeIcon, static_cast<std::int64_t>(count + behind)} : Chosen{};
}

using SelectedIcons = std::map<std::string, std::optional<std::int64_t>>;

void transfer(ApplyRun& run, const ApplyTask& task, SelectedIcons& selected) {
    const std::string& bundleID = task.app.bundleID;
    const std::string& name = task.app.name;
    log("Processing icon changes for " + name);
    log("  Selected index to save: " + std::to_string(task.change.selectedIndex.value_or(-1)));
    log("  📁 Existing permanent icons for " + name + ": " +
        std::to_string(run.with.icons.listIcons(bundleID).size()));

    const auto places = run.with.transfer.run(bundleID, name);
    if (places.size() != task.change.iconPaths.size()) {
        run.fail(task.app, "Its icons cannot be read. They stay staged.");
        return;
    }

    const Chosen chosen = chosenOf(run, task, places);
    run.earlierIcons.emplace(bundleID, run.with.settings.getSelectedIcon(bundleID));
    selected.emplace(bundleID, chosen.number);
    log("  Saved selected index: " + std::to_string(chosen.number.value_or(-1)));
    if (run.with.icons.removePendingFolderIfEmpty(bundleID))
        log("🧹 Removed empty pending directory for: " + name);

    if (chosen.path)
        run.chosenIcons.emplace(bundleID, *chosen.path);
    else if (task.wantsIcon() && run.with.icons.listIcons(bundleID).empty())
        log("  ⚠️ WARNING: Directory exists but no icons found - possible data loss!");
}

} // namespace

Next transferIcons(ApplyRun& run) {
    std::vector<IconTransfer::Application> applications;
    for (const ApplyTask& task : run.snapshot.tasks)
        applications.push_back({task.app.bundleID, task.change.iconPaths, task.marked});
    if (!applications.empty() && !run.with.transfer.begin(applications)) {
        for (const ApplyTask& task : run.snapshot.tasks)
            run.fail(task.app, "Its icons could not be moved: nothing can be written. They stay staged.");
        return Next::goOn;
    }
    SelectedIcons selected;
    for (const ApplyTask& task : run.snapshot.tasks) {
        run.report(run.magicPhrase());
        transfer(run, task, selected);
        run.stepsDone += 0.5;
    }
    // In one write for all. Until then the settings name the icons of before, also after a kill: the record of
    // the transfer tells which they are.
    if (!selected.empty())
        run.with.settings.setSelectedIcons(selected);
    return Next::goOn;
}

} // namespace tavrik
