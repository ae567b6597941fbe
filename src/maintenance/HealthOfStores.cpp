#include "changes/PendingChangesManager.h"
#include "changes/RecoveryFile.h"
#include "changes/apply/ApplyServices.h"
#include "maintenance/HealthChecks.h"
#include "maintenance/HealthLook.h"
#include "model/SettingsManager.h"
#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "system/DatabaseManager.h"
#include "system/DockManager.h"

#include <QString>

#include <cerrno>
#include <cstdint>

namespace tavrik {

namespace {

using Kind = HealthFinding::Kind;
using Remedy = HealthFinding::Remedy;

constexpr const char* kRestore = "\"tavrikctl backup restore\" puts a backup in its place.";

void checkLaunchpad(HealthLook& look) {
    const std::string subject = look.with.database.launchpadDatabasePath().string();
    if (look.launchpadFault) {
        look.findings.push_back(
            {Kind::launchpadDatabase, Remedy::none, subject, *look.launchpadFault,
             "Close other programs that use it, open Launchpad once, and look again. If that does not help, " +
                 std::string(kRestore)});
        return;
    }
    if (!look.triggerKey)
        look.findings.push_back({Kind::triggerKey, Remedy::none, subject,
                                 "The Launchpad database lacks the switch of its triggers, so it does not keep "
                                 "the order of its pages.",
                                 kRestore});
    else if (*look.triggerKey != "0")
        look.findings.push_back({Kind::triggerKey, Remedy::repair, subject,
                                 "The triggers of the Launchpad database are switched off, so it does not keep "
                                 "the order of its pages.",
                                 "The repair switches them on."});
}

void checkSettings(HealthLook& look) {
    const std::string subject = (look.with.settings.appSupportURL() / "AppSettings.plist").string();
    switch (look.settings) {
    case HealthLook::Settings::sound:
        break;
    case HealthLook::Settings::fromBackup:
        look.findings.push_back({Kind::settings, Remedy::repair, subject,
                                 "The settings are missing or damaged; their copy is sound.",
                                 "The repair puts the copy in their place. The change before the last may be "
                                 "the newest in it."});
        break;
    case HealthLook::Settings::lost:
        look.findings.push_back({Kind::settings, Remedy::none, subject,
                                 "The settings are lost, and so is what was known of restyled applications.",
                                 "Restore a backup with \"tavrikctl backup restore\": it shows every "
                                 "application as it is without Tavrik. Icons, themes and backups are there."});
        break;
    }
}

void checkStaged(HealthLook& look) {
    const RecoveryFile file(look.with.mac.files, look.with.pendingChanges.pendingChangesBaseURL());
    const auto root = file.load();
    if (root || root.error().code == ENOENT)
        return;
    look.findings.push_back(
        {Kind::stagedChanges, Remedy::repair, file.path().string(),
         "What is staged cannot be read: " + root.error().description + ".",
         "The repair puts the file aside, beside where it is, so that staging starts anew."});
}

/// Launchpad's own listing passes over such rows of applications that are not the system's.
void checkFlags(HealthLook& look) {
    for (const HealthLook::Row& row : look.rows) {
        const bool isApples =
            QString::fromStdString(row.bundleID).startsWith(QLatin1String("com.apple."), Qt::CaseInsensitive);
        if (row.flags || isApples || row.path.empty())
            continue;
        look.findings.push_back({Kind::nullFlags, Remedy::notNeeded, row.bundleID,
                                 row.title +
                                     " has a row in Launchpad without flags, which is not listed, so it "
                                     "cannot be restyled.",
                                 "Such rows come from other tools, and are left as they are. Row " +
                                     std::to_string(static_cast<std::int64_t>(row.number)) + "."});
    }
}

} // namespace

void checkStores(HealthLook& look) {
    checkLaunchpad(look);
    if (look.dockFault)
        look.findings.push_back({Kind::dockPreferences, Remedy::none, look.with.dock.dockPlistPath().string(),
                                 *look.dockFault, kRestore});
    checkSettings(look);
    checkStaged(look);
    checkFlags(look);
}

} // namespace tavrik
