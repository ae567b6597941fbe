#include "app/practice/PracticeHost.h"

#include "app/Host.h"
#include "platform/practice/PracticeMac.h"
#include "practice/furnish/Furnish.h"
#include "practice/session/Session.h"

#include <QCoreApplication>

namespace tavrik {

namespace {

practice::Programs programs() {
    return {.tool = programsFolder() / "practice-tool", .dock = programsFolder() / "practice-dock"};
}

class PracticeHost : public MacHost {
public:
    PracticeHost(const HostPath& root, Alerts& alerts) : m_mac(root, {.alerts = &alerts}) {}

    Mac& mac() override { return m_mac.mac(); }

    void startSession() override {
        if (!m_session)
            m_session = std::make_unique<practice::Session>(m_mac.root());
    }

private:
    practice::PracticeMac m_mac;
    std::unique_ptr<practice::Session> m_session;
};

} // namespace

Result<std::unique_ptr<MacHost>> openHost(Alerts& alerts) {
    return openPracticeMac(practice::defaultRoot(), alerts);
}

void findPlugins() {
    // The practice programs lie in no bundle.
}

HostPath programsFolder() {
    return HostPath(QCoreApplication::applicationDirPath().toStdString());
}

Result<std::unique_ptr<MacHost>> openPracticeMac(const HostPath& root, Alerts& alerts) {
    if (Status furnished = practice::furnish(root, programs()); !furnished)
        return furnished.error();
    return std::unique_ptr<MacHost>(std::make_unique<PracticeHost>(root, alerts));
}

Status resetPracticeMac(const HostPath& root) {
    return practice::furnishAnew(root, programs());
}

} // namespace tavrik
