#include "ui/models/UpdateOffer.h"

#include "app/MacHost.h"
#include "platform/Mac.h"
#include "platform/Machine.h"
#include "remote/RemoteServices.h"
#include "ui/models/Amounts.h"
#include "ui/models/InterfaceWords.h"
#include "ui/models/NetworkWords.h"
#include "ui/models/Notices.h"
#include "ui/models/Text.h"
#include "ui/models/WebPage.h"

#include <QCoreApplication>

#include <utility>

namespace tavrik {

namespace {

QString ownVersion() {
    return QCoreApplication::applicationVersion();
}

QString versionOf(const Release& release) {
    return toQString(textOf(release.version));
}

} // namespace

UpdateOffer::UpdateOffer(const UiServices& with, const InterfaceWords& words) : m_with(with), m_words(words) {}

bool UpdateOffer::isFound() const {
    const UpdateStatus& status = m_with.remote.updates();
    return status.stage == UpdateStatus::Stage::found && status.finding.verdict == UpdateVerdict::available;
}

QString UpdateOffer::newVersion() const {
    const UpdateStatus& status = m_with.remote.updates();
    return status.isOffered ? versionOf(*status.finding.release) : QString();
}

void UpdateOffer::check() {
    m_isShown = true;
    m_with.remote.checkForUpdates();
}

void UpdateOffer::checkQuietly() {
    m_with.remote.checkForUpdates();
}

void UpdateOffer::show() {
    m_isShown = true;
    refresh();
}

void UpdateOffer::close() {
    if (!std::exchange(m_isShown, false))
        return;
    m_with.remote.dismissUpdate();
    Q_EMIT changed();
}

void UpdateOffer::download() {
    const UpdateStatus& status = m_with.remote.updates();
    if (isFound())
        openWebPage(status.finding.release->link, m_with.notices);
    close();
}

void UpdateOffer::skip() {
    if (!isFound())
        return;
    const QString version = versionOf(*m_with.remote.updates().finding.release);
    m_with.remote.skipVersion();
    m_with.notices.tell(tr("You are not told of Tavrik %1 again.").arg(version));
    close();
}

void UpdateOffer::refresh() {
    // While the sheet fades it keeps its words.
    if (m_isShown)
        read();
    Q_EMIT changed();
}

void UpdateOffer::read() {
    const UpdateStatus& status = m_with.remote.updates();
    m_notes.clear();
    m_advice.clear();
    if (status.stage == UpdateStatus::Stage::checking)
        say(Stage::Checking, tr("Looking for a newer version…"), tr("It takes ten seconds at most."));
    else if (status.stage == UpdateStatus::Stage::found)
        readFinding(status.finding);
    else if (status.failure == RemoteFailure::switchedOff)
        say(Stage::Off, tr("Tavrik may not use the network"),
            tr("You switched it off for good. Allow it in the settings to look for a newer version."));
    else
        say(Stage::Failed, tr("Tavrik could not look for updates"),
            status.failure ? networkSentence(*status.failure) : tr("Nobody was asked yet."));
}

void UpdateOffer::readFinding(const UpdateFinding& finding) {
    if (finding.verdict == UpdateVerdict::newest || !finding.release)
        return say(Stage::Newest, tr("You have the newest version"),
                   m_words.text(InterfaceText::newestVersion).arg(ownVersion()));
    const Release& release = *finding.release;
    const QString needed = systemsText(release.minimumSystem, release.maximumSystem);
    if (finding.verdict == UpdateVerdict::available) {
        m_notes = toQString(release.notes);
        m_advice = m_words.text(InterfaceText::updateAdvice);
        const QString words =
            tr("You have %1. The download is %2 large.").arg(ownVersion(), sizeText(release.size));
        return say(Stage::Available, tr("Tavrik %1 is available").arg(versionOf(release)),
                   needed.isEmpty() ? words : tr("%1 It runs on %2.").arg(words, needed));
    }
    say(Stage::Unfit, tr("Tavrik %1 is not for this Mac").arg(versionOf(release)),
        tr("It runs on %1, and this Mac has macOS %2. Tavrik %3, which you have, stays as it is.")
            .arg(needed, systemText(m_with.host.mac().machine.systemVersion()), ownVersion()));
}

void UpdateOffer::say(Stage stage, const QString& headline, const QString& text) {
    m_stage = stage;
    m_headline = headline;
    m_text = text;
}

} // namespace tavrik
