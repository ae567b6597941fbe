#include "changes/apply/steps/Steps.h"
#include "fonts/FontManager.h"
#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "system/DockManager.h"

#include <chrono>

using namespace std::chrono_literals;

namespace tavrik {

namespace {

constexpr auto kAfterReadingTheDock = 200ms;

/// Makes sure that what the Dock has just written is there to be read.
void settle(ApplyRun& run) {
    ignoreFailure(run.with.dock.readDockPlist().has_value());
    run.with.mac.clock.sleep(kAfterReadingTheDock);
}

} // namespace

Next changeTitles(ApplyRun& run) {
    if (!run.needsFontOperation())
        return Next::goOn;
    run.report("Applying Font...");
    if (run.snapshot.changes.pendingReset) {
        log("\n=== RESETTING ALL FONTS TO NORMAL UNICODE ===");
        settle(run);
        run.with.fonts.resetAllFonts();
    } else if (run.snapshot.changes.pendingFont) {
        settle(run);
        run.with.fonts.applyFont(*run.snapshot.changes.pendingFont);
    } else {
        log("\n=== RE-APPLYING ACTIVE FONT TO ALL APPS ===");
        log("Active font: " + *run.snapshot.activeFont);
        settle(run);
        run.with.fonts.applyFont(*run.snapshot.activeFont);
    }
    run.changedTitles = true;
    run.stepsDone += 1;
    return Next::goOn;
}

} // namespace tavrik
