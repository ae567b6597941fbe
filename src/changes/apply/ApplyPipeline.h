#pragma once

#include "changes/ReloadNotifications.h"
#include "changes/apply/ApplyAudit.h"
#include "changes/apply/ApplyPlan.h"
#include "changes/apply/ApplyServices.h"
#include "platform/Path.h"
#include "platform/Result.h"
#include "system/AccessCheck.h"

#include <optional>
#include <string>
#include <vector>

class QObject;

namespace tavrik {

/// What an apply came to.
struct ApplyResult {
    enum class End {
        applied,       ///< to its end, with or without failed applications
        nothingStaged, ///< there was nothing to do
        cancelled,     ///< by the person, or since applications could not be closed; nothing was changed
        refused,       ///< something stands in the way; nothing was changed
    };

    struct FailedApp {
        std::string bundleID;
        std::string name;
        std::string reason; ///< a sentence
    };

    End end = End::applied;
    std::vector<std::string> reasons; ///< of a refusal or a cancellation, a sentence each
    std::optional<MacPath> backup;    ///< the snapshot that was taken before
    std::vector<FailedApp> failedApps;
    std::vector<Deviation> deviations; ///< what the stores do not show although it was applied
    bool isAudited = false;            ///< false when the stores could not be read back
};

/// Turns everything that is staged into changes of Launchpad and the Dock, in one ordered run. The steps stand
/// in ApplyPipeline.cpp.
///
/// Background thread; minutes: it waits deliberately, for child processes, for the Dock, and for answers. One
/// at a time. Until the themes' step begins nothing of the user's has changed but for the new backup; from
/// there on the run goes to its end, and what fails is collected. A kill at any moment leaves the recovery
/// file, from which the staged changes are recovered; applying them again reaches the same end.
class ApplyPipeline {
public:
    explicit ApplyPipeline(const ApplyServices& services) : m_services(services) {}

    /// `parentWindow` is what the progress sheet covers; null without a window.
    ApplyResult applyChanges(QObject* parentWindow = nullptr);

    /// What an apply of these changes would do, and what stands in its way. Changes nothing but what reading
    /// the catalogue records.
    struct Preview {
        ApplySnapshot snapshot;
        ApplyPlan plan;
        std::vector<std::string> obstacles;
        std::optional<PrivacyPane> refusedBy;     ///< where the person can allow what macOS refuses
        std::vector<ApplicationInfo> runningApps; ///< to be closed before
    };

    Preview preview(const StagedChanges& staged) const;

private:
    const ApplyServices m_services;
};

} // namespace tavrik
