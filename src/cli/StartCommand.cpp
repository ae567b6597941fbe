#include "cli/StartCommand.h"

#include "cli/Companion.h"
#include "maintenance/StartupMaintenance.h"
#include "maintenance/WrapperFolderSetup.h"

namespace tavrik {

ExitCode StartCommand::run(Companion& companion) {
    if (const ExitCode opened = companion.open(Access::writing); opened != ExitCode::done)
        return opened;
    Managers& managers = companion.managers();
    companion.host().startSession();
    setUpWrapperFolder(companion.host().mac(), managers.wrappers.tavrikAppsURL());

    bool wantsBackups = false;
    StartupMaintenance(managers.applyServices,
                       {.refreshLists = [] {}, .browseBackups = [&wantsBackups] { wantsBackups = true; }})
        .run();

    if (companion.onMain([&] { return managers.pendingChanges.hasPendingChanges(); }))
        companion.say(
            "Changes of before are staged. \"tavrikctl status\" tells which, \"tavrikctl apply\" brings "
            "them into Launchpad and the Dock, \"tavrikctl discard\" drops them.");
    if (wantsBackups)
        companion.say(
            "\"tavrikctl backup list\" lists the backups, \"tavrikctl backup show NAME\" tells what has "
            "changed since one, and \"tavrikctl backup restore NAME\" puts it back.");
    companion.say("Tavrik is ready.");
    return ExitCode::done;
}

} // namespace tavrik
