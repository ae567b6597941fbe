#include "backups/SafetyCopies.h"
#include "changes/PendingChangesManager.h"
#include "changes/apply/ApplyServices.h"
#include "maintenance/HealthChecks.h"
#include "maintenance/HealthLook.h"
#include "maintenance/Leftovers.h"
#include "model/SettingsManager.h"
#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "system/DatabaseManager.h"
#include "system/DockManager.h"
#include "wrappers/TavrikAppManager.h"

namespace tavrik {

namespace {

using Kind = HealthFinding::Kind;
using Remedy = HealthFinding::Remedy;

constexpr std::uint32_t kForOthers = 077;

bool isThere(const HealthLook& look, const MacPath& path) {
    return bool(look.with.mac.files.attributes(path, Links::dontFollow));
}

void checkApply(HealthLook& look) {
    const MacPath record = look.with.pendingChanges.pendingChangesBaseURL() / "transfer.plist";
    if (isThere(look, record))
        look.findings.push_back({Kind::unfinishedApply, Remedy::repair, record.string(),
                                 "An apply is under way, or was stopped half-way.",
                                 "The repair takes up where it was stopped. What it was to apply stays staged, "
                                 "and \"tavrikctl apply\" carries it to its end."});
}

/// Such a copy may be the only good one, so it is not the repair's to delete.
void checkRestore(HealthLook& look) {
    const SafetyCopies copies(look.with.mac, look.with.dock.dockPlistPath(),
                              look.with.database.launchpadDatabasePath());
    for (const MacPath& copy : {copies.dockPlist(), copies.launchpadDatabase()}) {
        if (isThere(look, copy))
            look.findings.push_back({Kind::unfinishedRestore, Remedy::none, copy.string(),
                                     "A restore is under way, or was stopped half-way: what was there before "
                                     "it is in " +
                                         copy.string() + ".",
                                     "Restore the same backup again with \"tavrikctl backup restore\". That "
                                     "finishes it, and removes the copy."});
    }
}

void checkLeftovers(HealthLook& look) {
    for (const MacPath& file : leftovers(look.with))
        look.findings.push_back({Kind::leftover, Remedy::repair, file.string(),
                                 file.string() + " was left behind by a program that was stopped.",
                                 "The repair deletes it."});
}

void checkFolders(HealthLook& look) {
    const auto report = [&](const MacPath& folder, const std::string& what, const std::string& advice) {
        look.findings.push_back(
            {Kind::folderRights, Remedy::none, folder.string(), folder.string() + what, advice});
    };
    for (const MacPath& folder : {look.with.settings.appSupportURL(), look.with.wrappers.tavrikAppsURL()}) {
        const auto attributes = look.with.mac.files.attributes(folder, Links::dontFollow);
        if (attributes && attributes->type != FileType::folder)
            report(folder, " is a link or a file where a folder belongs, so nothing is changed in it.",
                   "Move it away.");
        else if (attributes && folder == look.with.settings.appSupportURL() &&
                 (attributes->permissions & kForOthers) != 0)
            report(folder, " can be read by other users of this Mac.",
                   "\"chmod 700\" with this folder keeps them out.");
    }
}

} // namespace

void checkFiles(HealthLook& look) {
    checkApply(look);
    checkRestore(look);
    checkLeftovers(look);
    checkFolders(look);
}

} // namespace tavrik
