#include "system/LaunchpadManager.h"

#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/Threads.h"
#include "platform/Tools.h"
#include "system/DockManager.h"

#include <chrono>

using namespace std::chrono_literals;

namespace tavrik {

namespace {

constexpr auto kBeforeKill = 200ms;

} // namespace

LaunchpadManager::LaunchpadManager(Mac& mac, DockManager& dock) : m_mac(mac), m_dock(dock) {}

void LaunchpadManager::restartDock() {
    assertOffMainThread("The restart of the Dock");
    log("\n>>> DOCK RESTART: Killing Dock process to refresh Launchpad and Dock...");
    m_dock.forceDockSync();
    m_mac.clock.sleep(kBeforeKill);
    ignoreFailure(m_mac.tools.run(MacPath("/usr/bin/killall"), {"Dock"}));
    log(">>> DOCK RESTART: Complete\n");
}

} // namespace tavrik
