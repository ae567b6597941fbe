#include "changes/PendingChangesManager.h"
#include "changes/RecoveryFile.h"
#include "changes/apply/ApplyServices.h"
#include "changes/apply/SelectedIcon.h"
#include "icons/IconTransfer.h"
#include "maintenance/HealthChecks.h"
#include "maintenance/HealthLook.h"
#include "maintenance/OrphanedIcons.h"
#include "model/SettingsManager.h"
#include "platform/Mac.h"

#include <algorithm>

namespace tavrik {

namespace {

using Kind = HealthFinding::Kind;
using Remedy = HealthFinding::Remedy;

/// Whether what is staged may still be about to change the icons in use.
bool isApplyUnfinished(const HealthLook& look) {
    return !look.with.transfer.interrupted().empty();
}

void checkSelected(HealthLook& look, const std::string& bundleID) {
    const std::string name = look.nameOf(bundleID);
    const bool isThere = selectedIconFile(look.with, bundleID).has_value();
    const auto report = [&](Remedy remedy, const std::string& sentence, const std::string& advice) {
        look.findings.push_back({Kind::selectedIcon, remedy, bundleID, sentence, advice});
    };
    if (look.mappings.contains(bundleID)) {
        if (!isThere)
            report(Remedy::notNeeded, "The icon that " + name + " shows is not kept any more.",
                   "It stays on the wrapper. It cannot be written again, should the wrapper lose it.");
    } else if (!isThere) {
        report(Remedy::repair, name + " is to show an icon that is not there.",
               "The repair notes that it shows its own.");
    } else {
        report(Remedy::repair, "An icon is noted as the one that " + name + " shows, and it is not restyled.",
               "The repair stages the icon again. The next apply restyles the application.");
    }
}

void checkOrphans(HealthLook& look) {
    const OrphanedIcons orphans = orphanedIcons(look.with);
    for (const MacPath& folder : orphans.caches)
        look.findings.push_back({Kind::orphanedIcons, Remedy::notNeeded, folder.string(),
                                 "Icons are kept for " + folder.name() + ", which is not installed.",
                                 "They are yours, and stay until you delete " + folder.string() + "."});
    for (const std::string& bundleID : orphans.selectedIcons) {
        const bool isKept = std::ranges::any_of(
            orphans.caches, [&](const MacPath& folder) { return folder.name() == bundleID; });
        if (!isKept)
            look.findings.push_back({Kind::orphanedIcons, Remedy::repair, bundleID,
                                     "An icon is noted for " + bundleID + ", which is not installed.",
                                     "The repair forgets which."});
    }
}

} // namespace

void checkIcons(HealthLook& look) {
    if (!look.canCompare())
        return;
    if (!isApplyUnfinished(look)) {
        for (const auto& [bundleID, number] : look.with.settings.getAllSelectedIcons()) {
            if (number >= 0 && look.apps.contains(bundleID) && !look.covered.contains(bundleID))
                checkSelected(look, bundleID);
        }
    }
    checkOrphans(look);
}

} // namespace tavrik
