#include "icons/list/RowDescription.h"

#include "changes/PendingChangesManager.h"
#include "fonts/FontReplacer.h"
#include "fonts/PlainNames.h"
#include "icons/list/CatalogueReader.h"
#include "model/SettingsManager.h"
#include "model/UnsupportedAppsManager.h"
#include "model/catalogue/Refusal.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace tavrik {

namespace {

std::string plainNameOf(const ApplicationInfo& app, const FontReplacer& fonts) {
    return fonts.convertToNormal(app.name) == app.name ? app.name
                                                       : plainTitle(app.name, std::nullopt, app.path, fonts);
}

} // namespace

ApplicationRow describedRow(const ApplicationInfo& app, const CatalogueReading& reading,
                            const FontReplacer& fonts, const UnsupportedAppsManager& unsupported) {
    ApplicationRow row;
    row.app = app;
    row.plainName = plainNameOf(row.app, fonts);
    row.foldedName = fonts.folded(row.plainName);
    row.foldedBundleID = fonts.folded(row.app.bundleID);
    row.refusal = refusalOf(row.app, unsupported.contains(row.app.bundleID));
    row.isInDock = reading.dockApps.contains(row.app.bundleID);
    if (const auto icons = reading.themeIcons.find(row.app.bundleID); icons != reading.themeIcons.end())
        row.app.themeIcons = icons->second;
    return row;
}

IconRow recordedIcons(const std::string& bundleID, const StagedChanges& staged,
                      const PendingChangesManager& pendingChanges, SettingsManager& settings) {
    IconRow row = pendingChanges.iconRow(bundleID, staged);
    if (staged.pendingChanges.contains(bundleID)) {
        if (const auto marked = staged.markedForDeletion.find(bundleID);
            marked != staged.markedForDeletion.end())
            row.hiddenPermanentIndices = marked->second;
        return row;
    }
    // A chosen icon of a theme is stored as a number behind the permanent ones.
    const auto selected = settings.getSelectedIcon(bundleID);
    if (row.selectedIconIndex < 0 && selected &&
        *selected >= static_cast<std::int64_t>(row.permanentIconPaths.size()))
        row.selectedIconIndex =
            static_cast<int>(std::min<std::int64_t>(*selected, std::numeric_limits<int>::max()));
    return row;
}

} // namespace tavrik
