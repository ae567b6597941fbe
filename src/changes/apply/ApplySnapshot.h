#pragma once

#include "changes/StagedChanges.h"
#include "model/ApplicationInfo.h"
#include "platform/Path.h"

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tavrik {

struct ApplyServices;

/// What is staged for the icons of one application.
struct ApplyTask {
    ApplicationInfo app; ///< where it is not installed: just the identifier, which is then its name too
    bool isInstalled = true;
    IconChange change;
    std::set<int> marked;             ///< numbers of permanent icons to delete
    std::optional<MacPath> themeIcon; ///< the chosen icon, when it is one that a theme offers

    /// Whether an icon is chosen, in place of the application's own.
    bool wantsIcon() const { return change.selectedIndex && *change.selectedIndex >= 0; }
};

/// Everything that an apply is to bring about, taken once at its start: what is staged later waits for the next
/// one.
struct ApplySnapshot {
    StagedChanges changes;
    std::optional<std::string> activeFont; ///< the styled alphabet in effect
    std::vector<ApplyTask> tasks;          ///< by name

    bool hasFontOperation() const { return changes.pendingFont || changes.pendingReset; }
};

/// Background thread: reads the catalogue and the themes.
ApplySnapshot takeSnapshot(const ApplyServices& with, const StagedChanges& staged);

} // namespace tavrik
