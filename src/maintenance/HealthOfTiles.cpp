#include "changes/apply/ApplyServices.h"
#include "maintenance/HealthChecks.h"
#include "maintenance/HealthLook.h"
#include "model/SettingsManager.h"
#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "platform/PathRules.h"
#include "system/DockTiles.h"

#include <set>

namespace tavrik {

namespace {

using Kind = HealthFinding::Kind;
using Remedy = HealthFinding::Remedy;

void report(HealthLook& look, Remedy remedy, const std::string& bundleID, const std::string& sentence,
            const std::string& advice) {
    look.findings.push_back({Kind::tile, remedy, bundleID, sentence, advice});
}

void checkTile(HealthLook& look, const std::string& bundleID) {
    const MacPath path = look.tileOf(bundleID);
    const std::string name = look.nameOf(bundleID);
    const bool isMapped = look.mappings.contains(bundleID);
    if (isMapped && path != look.wrapperOf(bundleID))
        report(look, Remedy::repair, bundleID, "The Dock's tile of " + name + " leads past its wrapper.",
               "The repair points it at the wrapper.");
    if (isMapped || !isWrapperPath(path) || look.with.mac.files.exists(path))
        return;
    const std::string sentence = "The Dock's tile of " + name + " leads to a wrapper that is gone.";
    if (look.originalOf(bundleID).empty() && !look.with.settings.getDockBookmark(bundleID))
        report(look, Remedy::none, bundleID, sentence,
               "The application is gone too: drag the tile out of the Dock.");
    else
        report(look, Remedy::repair, bundleID, sentence, "The repair points it at the application again.");
}

} // namespace

void checkTiles(HealthLook& look) {
    if (look.settings == HealthLook::Settings::lost || !look.dock)
        return;
    if (look.canCompare()) {
        plist::Value preferences = *look.dock;
        std::set<std::string> pinned;
        for (const dock::Tile& tile : dock::appTiles(preferences))
            pinned.insert(*tile.bundleID());
        for (const std::string& bundleID : pinned) {
            if (!look.covered.contains(bundleID))
                checkTile(look, bundleID);
        }
    }
    for (const std::string& bundleID : look.savedBookmarks) {
        if (!look.mappings.contains(bundleID) && !look.swaps.contains(bundleID) &&
            !isWrapperPath(look.tileOf(bundleID)))
            report(look, Remedy::repair, bundleID,
                   "A bookmark is kept for the Dock's tile of " + look.nameOf(bundleID) +
                       ", which needs none: it is not restyled.",
                   "The repair forgets it.");
    }
}

} // namespace tavrik
