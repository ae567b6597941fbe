#include "platform/practice/PracticeMac.h"

#include "platform/Clock.h"
#include "platform/Random.h"
#include "platform/practice/PracticeAlerts.h"
#include "platform/practice/PracticeBookmarks.h"
#include "platform/practice/PracticeDefaults.h"
#include "platform/practice/PracticeFileManager.h"
#include "platform/practice/PracticeLocalNotifications.h"
#include "platform/practice/PracticeMachine.h"
#include "platform/practice/PracticeNotifications.h"
#include "platform/practice/PracticeTools.h"
#include "platform/practice/PracticeVolume.h"
#include "platform/practice/PracticeWorkspace.h"

namespace tavrik::practice {

namespace {

template<typename Port>
Port& chosen(Port* replacement, Port& own) {
    return replacement ? *replacement : own;
}

} // namespace

struct PracticeMac::Ports {
    Ports(const HostPath& root, const Replacements& replacements)
        : files(root),
          clock(chosen<Clock>(replacements.clock, systemClock)),
          volume(files),
          bookmarks(files),
          workspace(files, clock),
          tools(files),
          notifications(files, clock),
          defaults(files),
          machine(files),
          localNotifications(files, clock) {}

    PracticeFileManager files;
    SystemClock systemClock;
    Clock& clock;
    PracticeVolume volume;
    PracticeBookmarks bookmarks;
    PracticeWorkspace workspace;
    PracticeTools tools;
    PracticeNotifications notifications;
    PracticeDefaults defaults;
    PracticeMachine machine;
    PracticeLocalNotifications localNotifications;
    PracticeAlerts alerts;
    SystemRandom random;
};

PracticeMac::PracticeMac(HostPath root, const Replacements& replacements)
    : m_root(std::move(root)),
      m_ports(std::make_unique<Ports>(m_root, replacements)) {
    Ports& own = *m_ports;
    m_mac = std::make_unique<Mac>(
        Mac{.volume = own.volume,
            .files = own.files,
            .bookmarks = own.bookmarks,
            .workspace = own.workspace,
            .tools = chosen<Tools>(replacements.tools, own.tools),
            .notifications = chosen<DistributedNotifications>(replacements.notifications, own.notifications),
            .defaults = own.defaults,
            .machine = own.machine,
            .clock = own.clock,
            .alerts = chosen<Alerts>(replacements.alerts, own.alerts),
            .random = own.random,
            .localNotifications = own.localNotifications});
}

PracticeMac::~PracticeMac() = default;

Mac& PracticeMac::mac() {
    return *m_mac;
}

} // namespace tavrik::practice
