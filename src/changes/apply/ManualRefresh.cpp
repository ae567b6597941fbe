#include "changes/apply/ManualRefresh.h"

#include "changes/apply/ApplyServices.h"
#include "changes/apply/SelectedIcon.h"
#include "fonts/FontManager.h"
#include "icons/IconStore.h"
#include "model/SettingsManager.h"
#include "model/catalogue/AppManager.h"
#include "platform/Log.h"
#include "platform/Threads.h"
#include "system/LaunchpadManager.h"
#include "wrappers/TavrikAppManager.h"

#include <string>

namespace tavrik {

std::size_t manualRefresh(const ApplyServices& with) {
    assertOffMainThread("The manual refresh");
    log("\n=== MANUAL REFRESH INITIATED ===");
    log("Verifying icon synchronization...");
    std::size_t count = 0;
    for (const ApplicationInfo& app : with.apps.loadApplications()) {
        if (app.isIOSApp || !with.wrappers.hasWrapper(app.bundleID))
            continue;
        const QImage icon = selectedIconOf(with, app.bundleID);
        if (!icon.isNull() && with.wrappers.setWrapperIcon(app, icon))
            ++count;
    }
    log("Refreshed icons for " + std::to_string(count) + " tavrik app(s)");

    if (const auto font = with.settings.getCurrentFontState()) {
        log("Re-applying active font: " + font->fontName);
        with.fonts.applyFont(font->fontName);
    }
    log("Restarting Dock/Launchpad...");
    with.launchpad.restartDock();
    log("=== MANUAL REFRESH COMPLETE ===\n");
    return count;
}

} // namespace tavrik
