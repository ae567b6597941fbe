#include "ui/models/ApplyModel.h"

#include "app/AppDelegate.h"
#include "app/MacHost.h"
#include "app/Managers.h"
#include "changes/apply/StoreChangeWords.h"
#include "platform/Clock.h"
#include "platform/Mac.h"
#include "platform/Workspace.h"
#include "ui/models/Background.h"
#include "ui/models/CoreWords.h"
#include "ui/models/EndNotice.h"
#include "ui/models/Notices.h"
#include "ui/models/PrivacySettings.h"
#include "ui/models/Text.h"

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>
#include <chrono>

namespace tavrik {

namespace {

using namespace std::chrono_literals;

constexpr auto kForQuitting = 1500ms;

/// Rough, from the deliberate waits: a person wants to know whether to fetch a coffee.
int secondsOf(const ApplyPlan& plan) {
    const auto ofEach = static_cast<int>(plan.created.size() + plan.removed.size() + plan.updated.size() / 4);
    return 3 + 4 * plan.dockRestarts() + (plan.restartsForCreation ? 5 : 0) + (plan.changesTitles ? 8 : 0) +
           ofEach;
}

QString durationText(int seconds) {
    constexpr int kRound = 10;
    const int rounded = (seconds + kRound - 1) / kRound * kRound;
    return rounded < 60 ? ApplyModel::tr("About %n second(s).", nullptr, rounded)
                        : ApplyModel::tr("About %n minute(s).", nullptr, (rounded + 59) / 60);
}

QString namesText(const std::vector<std::string>& bundleIDs, const std::map<std::string, QString>& names) {
    constexpr std::size_t kMost = 4;
    QStringList list;
    for (std::size_t i = 0; i < std::min(kMost, bundleIDs.size()); ++i) {
        const auto name = names.find(bundleIDs[i]);
        list.append(name == names.end() ? toQString(bundleIDs[i]) : name->second);
    }
    const auto more = static_cast<int>(bundleIDs.size()) - static_cast<int>(list.size());
    return more > 0 ? ApplyModel::tr("%1 and %n more", nullptr, more).arg(list.join(QStringLiteral(", ")))
                    : list.join(QStringLiteral(", "));
}

QStringList summaryOf(const ApplyPlan& plan, const std::map<std::string, QString>& names) {
    QStringList lines;
    const auto add = [&](const std::vector<std::string>& ids, const QString& text) {
        if (!ids.empty())
            lines.append(text.arg(namesText(ids, names)));
    };
    add(plan.created, ApplyModel::tr("Restyled for the first time: %1."));
    add(plan.updated, ApplyModel::tr("Another icon: %1."));
    add(plan.removed, ApplyModel::tr("Back to their own look: %1."));
    if (plan.changesTitles)
        lines.append(ApplyModel::tr("Names are written anew, in Launchpad and the Dock."));
    switch (plan.dockRestarts()) {
    case 0:
        lines.append(ApplyModel::tr("The Dock is not restarted."));
        break;
    case 1:
        lines.append(ApplyModel::tr("The Dock restarts once, and vanishes for a moment."));
        break;
    default:
        lines.append(ApplyModel::tr("The Dock restarts %n time(s), and vanishes for a moment each time.",
                                    nullptr, plan.dockRestarts()));
    }
    lines.append(ApplyModel::tr("A backup is made before anything changes."));
    lines.append(durationText(secondsOf(plan)));
    return lines;
}

QVariantList detailsOf(const std::vector<StoreChange>& changes, const std::map<std::string, QString>& names) {
    QVariantList groups;
    for (auto first = changes.begin(); first != changes.end();) {
        const auto end = std::find_if(first, changes.end(),
                                      [&](const StoreChange& change) { return change.kind != first->kind; });
        QStringList lines;
        for (auto change = first; change != end; ++change) {
            const auto name = names.find(change->subject);
            lines.append(inTheirLanguage(
                inWords(*change, name == names.end() ? change->subject : name->second.toStdString())));
        }
        groups.append(QVariantMap{{QStringLiteral("title"), inTheirLanguage(headingOf(first->kind))},
                                  {QStringLiteral("lines"), lines}});
        first = end;
    }
    return groups;
}

} // namespace

/// What the background makes of the staged changes.
struct ApplyModel::Planned {
    ApplyPipeline::Preview preview;
    std::map<std::string, QString> names; ///< of the subjects of changes
};

ApplyModel::ApplyModel(const UiServices& with) : m_with(with) {
    with.delegate.setApplyObserver([this](const ApplyResult& result) { finish(result); });
    m_observations.push_back(with.managers.notificationCenter.observe(std::string(kProgressUpdated), [this] {
        // A refresh shows its progress too, and has no plan and no result.
        const bool isShown = m_with.managers.progress.isShown();
        if (isShown && m_stage == Stage::Idle)
            setStage(Stage::Running);
        else if (!isShown && m_stage == Stage::Running && !m_isApplying)
            setStage(Stage::Idle);
        Q_EMIT progressed();
    }));
}

QString ApplyModel::status() const {
    return inTheirLanguage(m_with.managers.progress.currentStatus());
}

double ApplyModel::value() const {
    return m_with.managers.progress.progressValue();
}

double ApplyModel::total() const {
    return m_with.managers.progress.totalSteps();
}

void ApplyModel::begin() {
    if (m_stage != Stage::Idle || !m_with.managers.pendingChanges.hasPendingChanges())
        return;
    setStage(Stage::Planning);
    plan();
}

void ApplyModel::plan() {
    m_with.background.run(
        this,
        [&managers = m_with.managers, staged = m_with.managers.pendingChanges.staged()] {
            Planned planned{managers.apply.preview(staged), {}};
            for (const ApplicationInfo& app : managers.apps.loadApplications())
                planned.names.emplace(app.bundleID,
                                      toQString(managers.fonts.fontReplacer().convertToNormal(app.name)));
            for (const Theme& theme : managers.themes.library().load())
                planned.names.emplace(theme.themeID, toQString(theme.name));
            return planned;
        },
        [this](const Planned& planned) { show(planned); });
}

void ApplyModel::show(const Planned& planned) {
    if (m_stage != Stage::Planning && m_stage != Stage::Plan)
        return;
    m_summary = summaryOf(planned.preview.plan, planned.names);
    m_details = detailsOf(planned.preview.plan.changes, planned.names);
    m_plannedApps = static_cast<int>(planned.preview.plan.created.size() + planned.preview.plan.updated.size() +
                                     planned.preview.plan.removed.size());
    m_obstacles = inTheirLanguage(planned.preview.obstacles);
    m_refusedBy = planned.preview.refusedBy;
    QStringList running;
    m_runningIDs.clear();
    for (const ApplicationInfo& app : planned.preview.runningApps) {
        running.append(toQString(app.name));
        m_runningIDs.push_back(app.bundleID);
    }
    m_runningApps = running.join(QStringLiteral(", "));
    setStage(Stage::Plan);
}

void ApplyModel::askAppsToQuit() {
    if (m_stage != Stage::Plan)
        return;
    m_with.background.run(
        this,
        [&mac = m_with.host.mac(), apps = m_runningIDs] {
            for (const std::string& bundleID : apps)
                ignoreFailure(mac.workspace.askToQuit(bundleID));
            mac.clock.sleep(kForQuitting);
        },
        [this] { plan(); });
}

void ApplyModel::openPrivacySettings() const {
    if (m_refusedBy)
        tavrik::openPrivacySettings(*m_refusedBy, m_with.notices);
}

void ApplyModel::apply() {
    if (m_stage != Stage::Plan || !m_obstacles.isEmpty() ||
        !m_with.delegate.validateMenuItem(AppDelegate::MenuAction::applyChanges))
        return;
    m_isApplying = true;
    setStage(Stage::Running);
    m_with.delegate.applyChanges();
}

void ApplyModel::finish(const ApplyResult& result) {
    m_isApplying = false;
    m_isClean = result.end == ApplyResult::End::applied && result.failedApps.empty() &&
                result.deviations.empty() && result.isAudited;
    m_remarks = inTheirLanguage(result.reasons);
    for (const auto& app : result.failedApps)
        m_remarks.append(tr("%1: %2").arg(toQString(app.name), inTheirLanguage(app.reason)));
    for (const Deviation& deviation : result.deviations)
        m_remarks.append(tr("Not as planned: %1").arg(inTheirLanguage(deviation.sentence)));
    if (result.end == ApplyResult::End::applied && !result.isAudited)
        m_remarks.append(
            tr("Launchpad and the Dock could not be read back, so nobody has looked whether they show it."));
    switch (result.end) {
    case ApplyResult::End::applied:
        m_headline =
            m_isClean ? tr("Everything is applied") : tr("Applied, but not everything went as planned");
        if (result.backup)
            m_remarks.append(
                tr("The state before is in the backup \u201c%1\u201d.").arg(toQString(result.backup->stem())));
        break;
    case ApplyResult::End::nothingStaged:
        m_headline = tr("There was nothing to apply");
        break;
    case ApplyResult::End::cancelled:
        m_headline = tr("Nothing was changed");
        break;
    case ApplyResult::End::refused:
        m_headline = tr("This cannot be applied now");
        break;
    }
    setStage(Stage::Result);
    tellTheEnd();
}

void ApplyModel::tellTheEnd() const {
    if (!m_isClean)
        return m_with.endNotice.tell(m_headline, m_remarks.value(0));
    m_with.endNotice.tell(tr("Your changes are applied"),
                          m_plannedApps > 0
                              ? tr("%n app(s) changed in Launchpad and the Dock.", nullptr, m_plannedApps)
                              : tr("Launchpad and the Dock look as you chose."));
}

void ApplyModel::close() {
    if (m_stage == Stage::Planning || m_stage == Stage::Plan || m_stage == Stage::Result)
        setStage(Stage::Idle);
}

void ApplyModel::copyDetails() const {
    QGuiApplication::clipboard()->setText(m_headline + QLatin1Char('\n') + m_remarks.join(QLatin1Char('\n')));
}

void ApplyModel::setStage(Stage stage) {
    m_stage = stage;
    Q_EMIT changed();
}

} // namespace tavrik
