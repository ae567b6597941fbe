#include "platform/macos/MacosMac.h"

#include "platform/Clock.h"
#include "platform/PosixFileManager.h"
#include "platform/Random.h"
#include "platform/macos/MacosAlerts.h"
#include "platform/macos/MacosBookmarks.h"
#include "platform/macos/MacosDefaults.h"
#include "platform/macos/MacosLocalNotifications.h"
#include "platform/macos/MacosMachine.h"
#include "platform/macos/MacosNotifications.h"
#include "platform/macos/MacosTools.h"
#include "platform/macos/MacosVolume.h"
#include "platform/macos/MacosWorkspace.h"

namespace tavrik::macos {

namespace {

/// Where a program that was started outside its bundle keeps its defaults, too.
constexpr const char* kProgramIdentifier = "com.tavrik.Tavrik";

std::string defaultsDomain(const Volume& volume) {
    const std::string identifier = volume.bundleIdentifier();
    return identifier.empty() ? kProgramIdentifier : identifier;
}

} // namespace

struct MacosMac::Ports {
    explicit Ports(Alerts& elsewhere) : alerts(elsewhere) {}

    PosixFileManager files{HostPath("/")};
    MacosVolume volume{files};
    MacosBookmarks bookmarks{files};
    MacosWorkspace workspace;
    MacosTools tools;
    MacosNotifications notifications;
    MacosDefaults defaults{defaultsDomain(volume), volume.home()};
    MacosMachine machine{files};
    SystemClock clock;
    MacosAlerts alerts;
    SystemRandom random;
    MacosLocalNotifications localNotifications;
};

MacosMac::MacosMac(Alerts& alerts) : m_ports(std::make_unique<Ports>(alerts)) {
    Ports& own = *m_ports;
    m_mac = std::make_unique<Mac>(Mac{.volume = own.volume,
                                      .files = own.files,
                                      .bookmarks = own.bookmarks,
                                      .workspace = own.workspace,
                                      .tools = own.tools,
                                      .notifications = own.notifications,
                                      .defaults = own.defaults,
                                      .machine = own.machine,
                                      .clock = own.clock,
                                      .alerts = own.alerts,
                                      .random = own.random,
                                      .localNotifications = own.localNotifications});
}

MacosMac::~MacosMac() = default;

Mac& MacosMac::mac() {
    return *m_mac;
}

} // namespace tavrik::macos
