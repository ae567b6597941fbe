#include "changes/apply/ApplyRun.h"

#include "changes/PendingChangesManager.h"
#include "changes/apply/ProgressOverlayManager.h"
#include "platform/Mac.h"
#include "platform/Random.h"

#include <algorithm>

namespace tavrik {

void ApplyRun::report(const std::string& status) const {
    with.progress.update(status, stepsDone);
}

std::string ApplyRun::magicPhrase() const {
    const auto& phrases = PendingChangesManager::magicPhrases;
    return std::string(phrases[with.mac.random.bytes(1).front() % phrases.size()]);
}

void ApplyRun::fail(const ApplicationInfo& app, const std::string& reason) {
    if (!hasFailed(app.bundleID))
        result.failedApps.push_back({app.bundleID, app.name, reason});
}

bool ApplyRun::hasFailed(const std::string& bundleID) const {
    return std::ranges::any_of(result.failedApps,
                               [&](const ApplyResult::FailedApp& app) { return app.bundleID == bundleID; });
}

bool ApplyRun::needsFontOperation() const {
    return snapshot.hasFontOperation() || (snapshot.activeFont && createdWrappers);
}

} // namespace tavrik
