#include "ui/models/HealthPage.h"

#include "app/MacHost.h"
#include "app/Managers.h"
#include "app/SharedCoordinators.h"
#include "maintenance/HealthCheck.h"
#include "maintenance/HealthRepair.h"
#include "ui/models/CoreWords.h"
#include "ui/models/EndNotice.h"
#include "ui/models/Images.h"
#include "ui/models/Text.h"

#include <algorithm>

namespace tavrik {

namespace {

using Remedy = HealthFinding::Remedy;
using Condition = FindingsModel::Condition;

Condition conditionOf(Remedy remedy) {
    switch (remedy) {
    case Remedy::notNeeded:
        return Condition::Note;
    case Remedy::none:
        return Condition::ByHand;
    case Remedy::repair:
        break;
    }
    return Condition::Mendable;
}

FindingsModel::Row rowOf(const HealthFinding& finding) {
    return {.group = inTheirLanguage(headingOf(finding)),
            .sentence = inTheirLanguage(finding.sentence),
            .advice = inTheirLanguage(finding.advice),
            .condition = conditionOf(finding.remedy)};
}

bool isAmong(const HealthFinding& finding, const std::vector<HealthFinding>& findings) {
    return std::ranges::any_of(findings, [&](const HealthFinding& each) { return isSame(each, finding); });
}

/// Mends of what was shown to the person what is found still.
HealthRepair mended(const ApplyServices& services, const std::vector<HealthFinding>& shown) {
    std::vector<HealthFinding> now = checkHealth(services);
    std::vector<HealthRepair::Outcome> already;
    for (const HealthFinding& finding : shown) {
        if (finding.remedy == Remedy::repair && !isAmong(finding, now))
            already.push_back({finding, true, HealthPage::tr("It was right by itself.").toStdString()});
    }
    std::erase_if(now, [&](const HealthFinding& finding) { return !isAmong(finding, shown); });
    HealthRepair repair = repairHealth(services, now);
    repair.outcomes.insert(repair.outcomes.end(), already.begin(), already.end());
    return repair;
}

} // namespace

HealthPage::HealthPage(const UiServices& with) : m_with(with), m_work(with) {}

void HealthPage::check() {
    m_work.run(
        tr("Looking at Launchpad, the Dock, wrappers, icons and backups…"), PageWork::Beside::edits,
        [&services = m_with.managers.applyServices] { return checkHealth(services); },
        [this](const std::vector<HealthFinding>& findings) { showFound(findings); });
}

void HealthPage::showFound(const std::vector<HealthFinding>& findings) {
    m_found = findings;
    m_isChecked = true;
    m_mending.clear();
    std::vector<FindingsModel::Row> rows;
    for (const HealthFinding& finding : findings) {
        rows.push_back(rowOf(finding));
        if (finding.remedy == Remedy::repair)
            m_mending.append(tr("%1 %2").arg(rows.back().sentence, rows.back().advice));
    }
    const auto wrong = static_cast<int>(std::ranges::count_if(
        findings, [](const HealthFinding& finding) { return finding.remedy != Remedy::notNeeded; }));
    m_isGood = wrong == 0;
    m_headline = m_isGood ? tr("Everything is as it should be.")
                          : tr("%n thing(s) are not as they should be.", nullptr, wrong);
    m_findings.show(std::move(rows));
    Q_EMIT changed();
}

void HealthPage::mend() {
    if (m_mending.isEmpty())
        return;
    m_work.run(
        tr("Mending…"), PageWork::Beside::nothing,
        [&services = m_with.managers.applyServices, &host = m_with.host, found = m_found] {
            host.startSession();
            return mended(services, found);
        },
        [this](const HealthRepair& repair) { showMended(repair); });
}

void HealthPage::showMended(const HealthRepair& repair) {
    std::vector<FindingsModel::Row> rows;
    bool isAllMended = true;
    bool isAllRight = true;
    for (const HealthFinding& finding : m_found) {
        rows.push_back(rowOf(finding));
        const auto outcome = std::ranges::find_if(
            repair.outcomes, [&](const HealthRepair::Outcome& each) { return isSame(each.finding, finding); });
        if (outcome == repair.outcomes.end()) {
            isAllRight = isAllRight && finding.remedy == Remedy::notNeeded;
            continue;
        }
        rows.back().condition = outcome->isMended ? Condition::Mended : Condition::NotMended;
        rows.back().advice = inTheirLanguage(outcome->sentence);
        isAllMended = isAllMended && outcome->isMended;
    }
    m_isGood = isAllMended && isAllRight;
    m_headline = !isAllMended ? tr("Not everything could be mended.")
                 : isAllRight ? tr("Everything is mended.")
                              : tr("What could be mended is mended.");
    m_mending.clear();
    m_findings.show(std::move(rows));

    QStringList remarks;
    if (repair.backup)
        remarks.append(tr("The state before is the newest backup now."));
    if (repair.hasStaged)
        remarks.append(tr("Something is staged: apply it, and everything looks as before."));
    m_work.tell(remarks.join(QLatin1Char(' ')));
    m_with.endNotice.tell(m_headline, m_work.remark());
    m_with.coordinators.refresh();
    m_with.images.raiseRevision();
    Q_EMIT changed();
}

} // namespace tavrik
