#include "maintenance/HealthFinding.h"

namespace tavrik {

std::string nameOf(HealthFinding::Kind kind) {
    using Kind = HealthFinding::Kind;
    switch (kind) {
    case Kind::launchpadDatabase:
        return "launchpadDatabase";
    case Kind::dockPreferences:
        return "dockPreferences";
    case Kind::settings:
        return "settings";
    case Kind::stagedChanges:
        return "stagedChanges";
    case Kind::triggerKey:
        return "triggerKey";
    case Kind::wrapperMissing:
        return "wrapperMissing";
    case Kind::wrapperLinks:
        return "wrapperLinks";
    case Kind::wrapperIcon:
        return "wrapperIcon";
    case Kind::wrapperUnknown:
        return "wrapperUnknown";
    case Kind::wrapperOrphaned:
        return "wrapperOrphaned";
    case Kind::rows:
        return "rows";
    case Kind::tile:
        return "tile";
    case Kind::label:
        return "label";
    case Kind::title:
        return "title";
    case Kind::unfinishedSwap:
        return "unfinishedSwap";
    case Kind::unfinishedTitles:
        return "unfinishedTitles";
    case Kind::unfinishedApply:
        return "unfinishedApply";
    case Kind::unfinishedRestore:
        return "unfinishedRestore";
    case Kind::leftover:
        return "leftover";
    case Kind::orphanedIcons:
        return "orphanedIcons";
    case Kind::selectedIcon:
        return "selectedIcon";
    case Kind::applicationUpdated:
        return "applicationUpdated";
    case Kind::nullFlags:
        return "nullFlags";
    case Kind::backup:
        return "backup";
    case Kind::layout:
        return "layout";
    case Kind::folderRights:
        return "folderRights";
    }
    return {};
}

std::string nameOf(HealthFinding::Remedy remedy) {
    using Remedy = HealthFinding::Remedy;
    switch (remedy) {
    case Remedy::notNeeded:
        return "notNeeded";
    case Remedy::none:
        return "none";
    case Remedy::repair:
        return "repair";
    }
    return {};
}

} // namespace tavrik
