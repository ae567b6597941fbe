#include "changes/apply/ApplyPipeline.h"

#include "changes/PendingChangesManager.h"
#include "changes/apply/AffectedApps.h"
#include "changes/apply/ApplyObstacles.h"
#include "changes/apply/ApplyRun.h"
#include "changes/apply/ProgressOverlayManager.h"
#include "changes/apply/steps/Steps.h"
#include "fonts/FontManager.h"
#include "model/SettingsManager.h"
#include "model/catalogue/AppManager.h"
#include "platform/Mac.h"
#include "platform/Threads.h"

#include <array>

namespace tavrik {

namespace {

using Step = Next (*)(ApplyRun&);

constexpr std::array<Step, 14> kSteps{
    prepare,           // what is staged, safe on disk; what it will change; what stands in the way
    closeAffectedApps, // after asking
    takeSafetyBackup,  // nothing of the user's has changed until here
    report,            // what is about to happen
    countSteps,        // for the bar
    changeThemes,      // hides, deleted icons, deleted themes
    transferIcons,     // pending ones become permanent, deleted ones go, the chosen one is recorded
    changeWrappers,    // updated, removed, created
    restartInBetween,  // so that titles are written onto what Launchpad knows
    changeTitles,      // into a style, or back to plain text
    restartAtTheEnd,   // so that it shows
    audit,             // what came of it
    finish,            // nothing is staged any more
    notify,            // the lists reload
};

} // namespace

ApplyResult ApplyPipeline::applyChanges(QObject* parentWindow) {
    assertOffMainThread("An apply");
    ApplyRun run(m_services, parentWindow);
    m_services.apps.isApplyingChanges = true;
    for (const Step step : kSteps) {
        if (step(run) == Next::stop)
            break;
    }
    m_services.progress.hide();
    m_services.apps.isApplyingChanges = false;
    return std::move(run.result);
}

ApplyPipeline::Preview ApplyPipeline::preview(const StagedChanges& staged) const {
    Preview preview;
    preview.snapshot = takeSnapshot(m_services, staged);
    preview.obstacles = obstaclesTo(m_services, preview.snapshot);
    if (!preview.obstacles.empty()) {
        const auto refused = refusedPlaces(m_services.mac, m_services.settings.appSupportURL());
        if (!refused.empty())
            preview.refusedBy = paneFor(refused, m_services.mac.machine.systemVersion());
    }
    preview.runningApps = runningAffectedApps(m_services.mac, preview.snapshot);
    if (const auto stores = readApplyStores(m_services, preview.snapshot))
        preview.plan = planOf(preview.snapshot, *stores, m_services.fonts.fontReplacer());
    else if (preview.obstacles.empty())
        preview.obstacles.push_back(stores.error().description);
    return preview;
}

} // namespace tavrik
