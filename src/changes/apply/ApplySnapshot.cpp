#include "changes/apply/ApplySnapshot.h"

#include "changes/apply/ApplyServices.h"
#include "model/SettingsManager.h"
#include "model/catalogue/AppManager.h"
#include "themes/ThemeManager.h"

#include <algorithm>
#include <cstddef>
#include <tuple>

namespace tavrik {

namespace {

/// Behind the icons of the row stand those that the themes offer.
std::optional<MacPath> chosenThemeIcon(const IconChange& change, const std::vector<MacPath>& offered) {
    if (!change.selectedIndex || *change.selectedIndex < 0)
        return std::nullopt;
    const auto index = static_cast<std::size_t>(*change.selectedIndex);
    if (index < change.iconPaths.size() || index - change.iconPaths.size() >= offered.size())
        return std::nullopt;
    return offered[index - change.iconPaths.size()];
}

} // namespace

ApplySnapshot takeSnapshot(const ApplyServices& with, const StagedChanges& staged) {
    ApplySnapshot snapshot{.changes = staged, .activeFont = {}, .tasks = {}};
    if (const auto font = with.settings.getCurrentFontState())
        snapshot.activeFont = font->fontName;

    const auto apps = with.apps.loadApplications();
    for (const auto& [bundleID, change] : snapshot.changes.pendingChanges) {
        ApplyTask task;
        task.change = change;
        const auto app = std::ranges::find(apps, bundleID, &ApplicationInfo::bundleID);
        task.isInstalled = app != apps.end();
        if (task.isInstalled) {
            task.app = *app;
        } else {
            task.app.bundleID = bundleID;
            task.app.name = bundleID;
        }
        if (const auto marked = snapshot.changes.markedForDeletion.find(bundleID);
            marked != snapshot.changes.markedForDeletion.end())
            task.marked = marked->second;
        task.themeIcon = chosenThemeIcon(change, with.themes.themeIconsFor(bundleID));
        snapshot.tasks.push_back(std::move(task));
    }
    std::ranges::sort(snapshot.tasks, [](const ApplyTask& one, const ApplyTask& other) {
        return std::tie(one.app.name, one.app.bundleID) < std::tie(other.app.name, other.app.bundleID);
    });
    return snapshot;
}

} // namespace tavrik
