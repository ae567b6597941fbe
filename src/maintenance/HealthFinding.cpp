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

bool isSame(const HealthFinding& one, const HealthFinding& other) {
    return one.kind == other.kind && one.subject == other.subject;
}

std::string headingOf(const HealthFinding& finding) {
    using Kind = HealthFinding::Kind;
    if (finding.remedy == HealthFinding::Remedy::notNeeded)
        return "Worth knowing";
    switch (finding.kind) {
    case Kind::launchpadDatabase:
    case Kind::dockPreferences:
    case Kind::settings:
    case Kind::stagedChanges:
    case Kind::triggerKey:
        return "Launchpad, the Dock and the settings";
    case Kind::wrapperMissing:
    case Kind::wrapperLinks:
    case Kind::wrapperIcon:
    case Kind::wrapperUnknown:
    case Kind::wrapperOrphaned:
    case Kind::rows:
    case Kind::tile:
        return "Restyled applications";
    case Kind::label:
    case Kind::title:
        return "Names";
    case Kind::unfinishedSwap:
    case Kind::unfinishedTitles:
    case Kind::unfinishedApply:
    case Kind::unfinishedRestore:
    case Kind::leftover:
        return "Unfinished work";
    case Kind::orphanedIcons:
    case Kind::selectedIcon:
    case Kind::applicationUpdated:
    case Kind::nullFlags:
        return "Icons and applications";
    case Kind::backup:
    case Kind::layout:
    case Kind::folderRights:
        break;
    }
    return "Backups and folders";
}

} // namespace tavrik
