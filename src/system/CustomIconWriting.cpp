#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/Result.h"
#include "platform/Threads.h"
#include "platform/Workspace.h"
#include "system/IconManager.h"

#include <chrono>

using namespace std::chrono_literals;

namespace tavrik {

namespace {

constexpr int kAttempts = 3;
constexpr auto kAfterFailure = 100ms;

} // namespace

bool IconManager::setCustomIcon(const QImage& icon, const MacPath& forPath) {
    assertOffMainThread("The setting of a custom icon");

    // A path that keeps its old icon is no failure: the attempts below tell.
    ignoreFailure(m_mac.workspace.clearIcon(forPath));

    const QImage copy = icon.copy();
    if (copy.isNull()) {
        log("ERROR: Failed to copy icon");
        return false;
    }

    for (int attempt = 1; attempt <= kAttempts; ++attempt) {
        if (m_mac.workspace.setIcon(forPath, copy)) {
            log("Successfully set custom icon for " + forPath.string());
            return true;
        }
        log("Failed to set icon on attempt " + std::to_string(attempt) + ", retrying...");
        m_mac.clock.sleep(kAfterFailure);
    }
    log("ERROR: Failed to set custom icon for " + forPath.string() + " after 3 attempts");
    return false;
}

} // namespace tavrik
