#include "changes/apply/AffectedApps.h"

#include "changes/apply/ApplySnapshot.h"
#include "platform/Mac.h"
#include "platform/Volume.h"
#include "platform/Workspace.h"

#include <algorithm>
#include <string_view>

namespace tavrik {

namespace {

/// The system starts these again at once, and restyling needs none of them closed.
constexpr std::string_view kExempt[] = {"com.apple.finder", "com.apple.dock", "com.apple.launchpad.launcher"};

} // namespace

std::vector<ApplicationInfo> runningAffectedApps(const Mac& mac, const ApplySnapshot& snapshot) {
    const auto running = mac.workspace.runningApplications();
    std::vector<ApplicationInfo> affected;
    for (const ApplyTask& task : snapshot.tasks) {
        const std::string& bundleID = task.app.bundleID;
        const bool isExempt = std::ranges::find(kExempt, bundleID) != std::end(kExempt) ||
                              bundleID == mac.volume.bundleIdentifier();
        if (!isExempt && std::ranges::find(running, bundleID, &RunningApplication::bundleID) != running.end())
            affected.push_back(task.app);
    }
    return affected;
}

} // namespace tavrik
