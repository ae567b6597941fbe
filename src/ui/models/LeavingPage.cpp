#include "ui/models/LeavingPage.h"

#include "app/AppDelegate.h"
#include "app/MacHost.h"
#include "app/Managers.h"
#include "remote/RemoteServices.h"
#include "ui/models/Amounts.h"
#include "ui/models/CoreWords.h"
#include "ui/models/EndNotice.h"
#include "ui/models/Text.h"

namespace tavrik {

namespace {

QVariantMap fact(const QString& figure, const QString& text) {
    return {{QStringLiteral("figure"), figure}, {QStringLiteral("text"), text}};
}

QVariantMap counted(std::size_t count, const char* text) {
    const auto number = static_cast<int>(count);
    return fact(QString::number(number), LeavingPage::tr(text, nullptr, number));
}

QVariantList figuresOf(const Traces& traces) {
    QVariantList figures{
        counted(traces.restyled.size(), QT_TRANSLATE_N_NOOP("tavrik::LeavingPage", "restyled app(s)")),
        counted(traces.bundles.size(), QT_TRANSLATE_N_NOOP("tavrik::LeavingPage", "stand-in(s) on the disk")),
        counted(traces.wrapperTiles.size(), QT_TRANSLATE_N_NOOP("tavrik::LeavingPage", "tile(s) of the Dock"))};
    if (traces.style)
        figures.append(fact(toQString(*traces.style), LeavingPage::tr("the style of all names")));
    else if (traces.hasStyle())
        figures.append(counted(traces.styledTitles.size() + traces.styledFolders.size(),
                               QT_TRANSLATE_N_NOOP("tavrik::LeavingPage", "name(s) in styled letters")));
    if (const std::size_t half = traces.unfinished.size() + (traces.isStyleUnfinished ? 1 : 0); half > 0)
        figures.append(counted(half, QT_TRANSLATE_N_NOOP("tavrik::LeavingPage", "change(s) stopped half-way")));
    return figures;
}

QVariantList factsOf(const Belongings& belongings) {
    return {fact(sizeText(belongings.iconBytes), LeavingPage::tr("icons of your apps")),
            fact(sizeText(belongings.themeBytes),
                 LeavingPage::tr("in %n theme(s)", nullptr, static_cast<int>(belongings.themes))),
            fact(sizeText(belongings.backupBytes),
                 LeavingPage::tr("in %n backup(s)", nullptr, static_cast<int>(belongings.backups)))};
}

} // namespace

LeavingPage::LeavingPage(const UiServices& with) : m_with(with), m_work(with) {}

void LeavingPage::refresh() {
    m_work.run(
        tr("Looking what there is…"), PageWork::Beside::edits,
        [&services = m_with.managers.applyServices] {
            return Found{readTraces(services), readBelongings(services)};
        },
        [this](const Found& found) { take(found); });
}

void LeavingPage::take(const Found& found) {
    m_belongings = factsOf(found.belongings);
    m_size = sizeText(found.belongings.bytes);
    if (!found.traces) {
        m_work.fail(inTheirLanguage(found.traces.error().description));
        return setStage(Stage::Unknown);
    }
    m_figures = figuresOf(*found.traces);
    const bool wasTakenBack = m_stage == Stage::TakenBack || m_stage == Stage::Unfinished;
    m_traces = inTheirLanguage(found.traces->inWords());
    if (m_traces.isEmpty())
        return setStage(wasTakenBack ? Stage::TakenBack : Stage::Nothing);
    if (m_stage == Stage::Unfinished)
        return setStage(Stage::Unfinished);
    m_done.clear(); // of an earlier time, something was restyled since
    setStage(Stage::Present);
}

void LeavingPage::takeBack() {
    m_work.run(
        tr("Taking everything back…"), PageWork::Beside::nothing,
        [&services = m_with.managers.applyServices, &host = m_with.host] {
            host.startSession();
            return RemoveEverything(services).removeFromSystem();
        },
        [this](const Result<RemoveEverything::Outcome>& outcome) { finish(outcome); });
}

void LeavingPage::finish(const Result<RemoveEverything::Outcome>& outcome) {
    if (!outcome) {
        m_work.fail(tr("Nothing was changed. %1").arg(inTheirLanguage(outcome.error().description)));
        return m_with.endNotice.tell(tr("Nothing is taken back"), m_work.remark());
    }
    m_done = inTheirLanguage(outcome->done);
    if (!outcome->backup.empty())
        m_done.append(
            tr("What was there before, but for restyled apps and styled names, is the newest backup now."));
    m_traces = inTheirLanguage(outcome->traces);
    setStage(m_traces.isEmpty() ? Stage::TakenBack : Stage::Unfinished);
    m_with.endNotice.tell(
        m_traces.isEmpty() ? tr("Everything is taken back") : tr("Not everything is taken back"),
        m_traces.isEmpty() ? tr("Launchpad and the Dock look as they did without Tavrik.") : m_traces.front());
    refresh();
}

void LeavingPage::deleteAll() {
    if (m_stage != Stage::Nothing && m_stage != Stage::TakenBack)
        return;
    m_with.remote.fallSilent();
    m_work.run(
        tr("Deleting what Tavrik keeps…"), PageWork::Beside::nothing,
        [&services = m_with.managers.applyServices] {
            return RemoveEverything(services).removeSupportFolder();
        },
        [this](const Status& removed) {
            if (!removed) {
                m_work.fail(inTheirLanguage(removed.error().description));
                return;
            }
            m_with.delegate.discardChanges();
            Q_EMIT left();
        });
}

void LeavingPage::setStage(Stage stage) {
    m_stage = stage;
    Q_EMIT changed();
}

} // namespace tavrik
