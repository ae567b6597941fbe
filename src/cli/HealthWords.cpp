#include "cli/HealthWords.h"

#include "maintenance/HealthRepair.h"

#include <QJsonObject>
#include <QString>

#include <algorithm>

namespace tavrik {

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
