#pragma once

#include "changes/apply/ApplyServices.h"

#include <functional>

namespace tavrik {

/// What the checks at the start of the program need of whoever starts it.
struct StartupHooks {
    std::function<void()> refreshLists;  ///< reads the catalogue anew; any thread
    std::function<void()> browseBackups; ///< the person asked for the backups; any thread, never waits
};

/// The checks at the start of the program, in a fixed order: leftovers of a crash, unapplied changes of before,
/// wrappers without an original, and a Launchpad layout unlike the last backup. Asks the person where there is
/// something to decide; every step is best-effort and the next one runs.
///
/// Background thread, on which its questions wait for an answer; what belongs to the main thread runs there.
/// The program holds the support folder's lock. Nothing may be staged before `offerRecovery` has returned.
class StartupMaintenance {
public:
    StartupMaintenance(const ApplyServices& with, StartupHooks hooks);

    /// All of it.
    void run();

    void removeLeftovers();
    void offerRecovery();
    void checkOrphanedWrappers();
    void checkForLayoutIssues();

private:
    const ApplyServices m_with;
    const StartupHooks m_hooks;
};

} // namespace tavrik
