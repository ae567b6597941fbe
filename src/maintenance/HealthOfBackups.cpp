#include "backups/BackupManager.h"
#include "changes/apply/ApplyServices.h"
#include "maintenance/HealthChecks.h"
#include "maintenance/HealthLook.h"
#include "maintenance/LayoutCheck.h"

#include <variant>

namespace tavrik {

namespace {

using Kind = HealthFinding::Kind;
using Remedy = HealthFinding::Remedy;

void report(HealthLook& look, const std::string& subject, const std::string& sentence,
            const std::string& advice) {
    look.findings.push_back({Kind::backup, Remedy::none, subject, sentence, advice});
}

} // namespace

void checkBackups(HealthLook& look) {
    const BackupManager& backups = look.with.backups;
    const auto items = backups.readItems();
    if (!items)
        return report(look, backups.backupsBaseURL().string(), items.error().description,
                      "See that the folder can be read.");
    if (!backups.deriveBackupKey())
        return report(
            look, backups.backupsBaseURL().string(),
            "This Mac does not tell its serial number, so that backups can be neither made nor opened.",
            "Nothing is applied without a backup.");
    for (const BackupListItem& item : *items) {
        const BackupReading reading = backups.readBackup(item.url);
        if (const auto* fault = std::get_if<BackupFault>(&reading))
            report(look, item.url.string(), "\"" + item.id + "\" cannot be used. " + inWords(*fault),
                   "Another backup may serve. Delete the file if you do not need it.");
    }
    if (look.launchpadFault || items->empty())
        return;
    if (const int moved = checkLayout(look.with); moved >= kLayoutIssueThreshold)
        look.findings.push_back(
            {Kind::layout, Remedy::none, items->back().id,
             std::to_string(moved) + " applications stand on other pages than in the newest backup.",
             "If it was not you who moved them, look at the backups with \"tavrikctl backup "
             "show\", and restore one."});
}

} // namespace tavrik
