#include "cli/HealthWords.h"

#include "maintenance/HealthRepair.h"

#include <QJsonObject>
#include <QString>

#include <algorithm>

namespace tavrik {

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

namespace {

QJsonObject toJson(const HealthFinding& finding) {
    const auto text = [](const std::string& from) { return QString::fromStdString(from); };
    return {{QLatin1String("kind"), text(nameOf(finding.kind))},
            {QLatin1String("remedy"), text(nameOf(finding.remedy))},
            {QLatin1String("subject"), text(finding.subject)},
            {QLatin1String("sentence"), text(finding.sentence)},
            {QLatin1String("advice"), text(finding.advice)}};
}

} // namespace

QJsonArray toJson(const std::vector<HealthFinding>& findings) {
    return toJson(findings, {});
}

QJsonArray toJson(const std::vector<HealthFinding>& findings, const HealthRepair& repair) {
    QJsonArray array;
    for (const HealthFinding& finding : findings) {
        QJsonObject object = toJson(finding);
        const auto outcome = std::ranges::find_if(
            repair.outcomes, [&](const HealthRepair::Outcome& each) { return isSame(each.finding, finding); });
        if (outcome != repair.outcomes.end())
            object[QLatin1String("outcome")] =
                QJsonObject{{QLatin1String("isMended"), outcome->isMended},
                            {QLatin1String("sentence"), QString::fromStdString(outcome->sentence)}};
        array.append(object);
    }
    return array;
}

} // namespace tavrik
