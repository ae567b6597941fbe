#include "backups/BackupManager.h"
#include "changes/apply/steps/Steps.h"

namespace tavrik {

Next takeSafetyBackup(ApplyRun& run) {
    const auto backup = run.with.backups.createBackup();
    if (!backup) {
        // Without a way back nothing is changed.
        run.result.end = ApplyResult::End::refused;
        run.result.reasons.push_back("No backup could be taken, so nothing was changed. " +
                                     backup.error().description);
        return Next::stop;
    }
    run.result.backup = *backup;
    return Next::goOn;
}

} // namespace tavrik
