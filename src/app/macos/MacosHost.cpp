#include "app/Host.h"
#include "platform/macos/MacosMac.h"
#include "platform/macos/ProgramBundle.h"
#include "platform/macos/WindowTabs.h"

#include <QCoreApplication>

namespace tavrik {

namespace {

class MacosHost : public MacHost {
public:
    explicit MacosHost(Alerts& alerts) : m_mac(alerts) {}

    Mac& mac() override { return m_mac.mac(); }

    void startSession() override {
        // A real Mac's session runs before any program does.
    }

    void disableAutomaticTabbing() override { macos::disableAutomaticTabbing(); }

private:
    macos::MacosMac m_mac;
};

} // namespace

Result<std::unique_ptr<MacHost>> openHost(Alerts& alerts) {
    return std::unique_ptr<MacHost>(std::make_unique<MacosHost>(alerts));
}

void findPlugins() {
    // An empty or missing folder is passed over.
    QCoreApplication::addLibraryPath(QString::fromStdString(macos::findProgramBundle().plugins.string()));
}

} // namespace tavrik
