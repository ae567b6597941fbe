#include "ui/models/UpdatesPage.h"

#include "app/MacHost.h"
#include "platform/Clock.h"
#include "platform/Mac.h"
#include "remote/Endpoint.h"
#include "remote/RemoteServices.h"
#include "ui/models/Amounts.h"
#include "ui/models/NetworkWords.h"
#include "ui/models/Text.h"

#include <utility>

namespace tavrik {

UpdatesPage::UpdatesPage(const UiServices& with, const InterfaceWords& words)
    : m_with(with),
      m_offer(with, words) {}

bool UpdatesPage::isKnown() const {
    return m_with.remote.isReady();
}

bool UpdatesPage::checksForUpdates() const {
    return m_with.remote.choice().wantsUpdates;
}

void UpdatesPage::setChecksForUpdates(bool checks) {
    m_with.remote.choose(fetchesTexts(), checks);
}

bool UpdatesPage::fetchesTexts() const {
    return m_with.remote.choice().wantsTexts;
}

void UpdatesPage::setFetchesTexts(bool fetches) {
    m_with.remote.choose(fetches, checksForUpdates());
}

bool UpdatesPage::isOff() const {
    return m_with.remote.choice().isOffForGood;
}

void UpdatesPage::setIsOff(bool isOff) {
    m_with.remote.setOffForGood(isOff);
}

bool UpdatesPage::isChecking() const {
    return m_with.remote.updates().stage == UpdateStatus::Stage::checking;
}

QString UpdatesPage::addresses() const {
    QStringList hosts;
    for (const RemoteKind kind : kRemoteKinds) {
        const auto address = endpointOf(kind, m_with.host.mac().defaults);
        if (address)
            hosts.append(address->host());
    }
    hosts.removeDuplicates();
    return hosts.isEmpty() ? tr("no server") : hosts.join(QStringLiteral(", "));
}

QString UpdatesPage::found() const {
    const UpdateStatus& status = m_with.remote.updates();
    if (isOff())
        return tr("The network is switched off.");
    switch (status.stage) {
    case UpdateStatus::Stage::unknown:
        return tr("Whether there is a newer version is not known.");
    case UpdateStatus::Stage::checking:
        return tr("Looking for a newer version…");
    case UpdateStatus::Stage::failed:
        return status.failure ? networkSentence(*status.failure) : QString();
    case UpdateStatus::Stage::found:
        break;
    }
    if (status.finding.verdict == UpdateVerdict::newest || !status.finding.release)
        return tr("There is no newer version.");
    const QString version = toQString(textOf(status.finding.release->version));
    return status.finding.verdict == UpdateVerdict::available
               ? tr("Tavrik %1 is available.").arg(version)
               : tr("There is Tavrik %1, which does not run on this macOS.").arg(version);
}

QString UpdatesPage::remark(RemoteKind kind) const {
    const ServiceReport report = m_with.remote.report(kind);
    if (report.isFetching)
        return tr("Asking now…");
    if (!report.asked)
        return tr("Never asked until now.");
    const QString moment = momentText(*report.asked, m_with.host.mac().clock.now());
    return report.failure ? tr("%1, without success. %2").arg(moment, networkSentence(*report.failure))
                          : tr("%1, with a good answer.").arg(moment);
}

QString UpdatesPage::problem() const {
    return m_with.remote.isChoiceSaved() ? QString() : tr("This could not be saved. Is the disk full?");
}

void UpdatesPage::answerQuestion(bool isAllowed) {
    if (std::exchange(m_isQuestionShown, false))
        m_with.remote.choose(isAllowed, isAllowed);
    Q_EMIT changed();
}

void UpdatesPage::setWindowFree(bool isFree) {
    if (isFree == m_isWindowFree)
        return;
    m_isWindowFree = isFree;
    askWhenDue();
    if (isFree)
        m_with.remote.fetchDue(); // what waited for the window
}

void UpdatesPage::refresh() {
    m_offer.refresh();
    askWhenDue();
    Q_EMIT changed();
}

void UpdatesPage::askWhenDue() {
    const bool isDue = isKnown() && m_with.remote.choice().isQuestionDue();
    if (m_isQuestionShown || !m_isWindowFree || !isDue || m_offer.isShown())
        return;
    m_isQuestionShown = true;
    Q_EMIT changed();
}

} // namespace tavrik
