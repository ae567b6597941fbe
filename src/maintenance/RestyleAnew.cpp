#include "maintenance/RestyleAnew.h"

#include "changes/PendingChangesManager.h"
#include "changes/apply/ApplyServices.h"
#include "changes/apply/SelectedIcon.h"
#include "maintenance/HealthLook.h"
#include "maintenance/LostExchange.h"
#include "model/SettingsManager.h"
#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "platform/MainQueue.h"
#include "platform/PathRules.h"
#include "themes/ThemeManager.h"
#include "wrappers/TavrikAppManager.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace tavrik {

namespace {

/// An exchange is undone only between rows that were exchanged: without the wrapper's there is nothing that the
/// original could be exchanged with. One that the settings have lost is noted again.
void correctMapping(const HealthLook& look, const std::string& bundleID) {
    const auto mapping = look.mappings.find(bundleID);
    if (mapping == look.mappings.end()) {
        if (!look.swaps.contains(bundleID))
            noteLostExchange(look, bundleID);
        return;
    }
    const auto* wrapper = look.rowOf(bundleID, mapping->second.tavrikRowID);
    if (!wrapper || !isWrapperPath(wrapper->best()))
        look.with.settings.removeMapping(bundleID);
}

bool putBack(const HealthLook& look, const std::string& bundleID) {
    const ApplicationInfo app = look.applicationFor(bundleID);
    SettingsManager& settings = look.with.settings;
    correctMapping(look, bundleID);
    if (app.path.empty()) {
        // Neither the application nor its wrapper is anywhere.
        settings.removeMapping(bundleID);
        settings.removeSwapRecord(bundleID);
        settings.setSelectedIcon(bundleID, std::nullopt);
        return !settings.getMapping(bundleID) && !settings.getSwapRecord(bundleID);
    }
    // Where the bundle is gone, the rows are known by their numbers alone.
    if (!look.with.wrappers.hasBundle(app))
        look.with.wrappers.refreshWrapper(app);
    return look.with.wrappers.removeWrapper(app, RestartDock::no);
}

/// The place of an icon in the row, or behind it among the icons of themes. Main thread.
std::optional<int> placeOf(const ApplyServices& with, const std::string& bundleID, const MacPath& icon) {
    auto offered = with.pendingChanges.iconRow(bundleID).displayPaths();
    std::ranges::copy(with.themes.themeIconsFor(bundleID), std::back_inserter(offered));
    const auto place = std::ranges::find(offered, icon);
    return place == offered.end() ? std::nullopt : std::optional(static_cast<int>(place - offered.begin()));
}

bool stage(const ApplyServices& with, const std::string& bundleID, const std::optional<MacPath>& icon) {
    bool isStaged = false;
    MainQueue::sync([&] {
        isStaged = with.pendingChanges.staged().pendingChanges.contains(bundleID);
        const auto place = isStaged || !icon ? std::nullopt : placeOf(with, bundleID, *icon);
        if (place)
            isStaged = with.pendingChanges.selectIcon(bundleID, place) &&
                       with.pendingChanges.savePendingChangesToTempFile();
    });
    return isStaged;
}

} // namespace

RestyledAnew restyleAnew(const HealthLook& look, const std::string& bundleID) {
    const auto icon = selectedIconFile(look.with, bundleID);
    if (!putBack(look, bundleID))
        return RestyledAnew::no;
    const auto listed = look.apps.find(bundleID);
    const bool canRestyle =
        listed != look.apps.end() && !listed->second.isIOSApp && !listed->second.isUnsupportedApp;
    return canRestyle && stage(look.with, bundleID, icon) ? RestyledAnew::staged : RestyledAnew::ownLook;
}

} // namespace tavrik
