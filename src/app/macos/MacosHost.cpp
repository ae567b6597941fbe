#include "app/Host.h"
#include "platform/macos/MacosMac.h"

namespace tavrik {

namespace {

class MacosHost : public MacHost {
public:
    explicit MacosHost(Alerts& alerts) : m_mac(alerts) {}

    Mac& mac() override { return m_mac.mac(); }

    void startSession() override {
        // A real Mac's session runs before any program does.
    }

private:
    macos::MacosMac m_mac;
};

} // namespace

Result<std::unique_ptr<MacHost>> openHost(Alerts& alerts) {
    return std::unique_ptr<MacHost>(std::make_unique<MacosHost>(alerts));
}

} // namespace tavrik
