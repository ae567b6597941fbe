#include "changes/apply/AffectedApps.h"
#include "changes/apply/steps/Steps.h"
#include "platform/Alerts.h"
#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/Workspace.h"

#include <algorithm>
#include <chrono>
#include <string_view>

using namespace std::chrono_literals;

namespace tavrik {

namespace {

constexpr auto kAfterForceQuit = 1500ms;
constexpr auto kAfterClosing = 500ms;
constexpr std::size_t kCloseAll = 0; ///< the button

bool isRunning(const ApplyRun& run, const std::string& bundleID) {
    const auto running = run.with.mac.workspace.runningApplications();
    return std::ranges::find(running, bundleID, &RunningApplication::bundleID) != running.end();
}

std::string joined(const std::vector<ApplicationInfo>& apps, std::string_view separator) {
    std::string names;
    for (const ApplicationInfo& app : apps)
        names.append(names.empty() ? std::string_view() : separator).append(app.name);
    return names;
}

Next cancel(ApplyRun& run, const char* line, std::string reason) {
    log(line);
    run.result.end = ApplyResult::End::cancelled;
    run.result.reasons.push_back(std::move(reason));
    return Next::stop;
}

} // namespace

Next closeAffectedApps(ApplyRun& run) {
    const auto affected = runningAffectedApps(run.with.mac, run.snapshot);
    if (affected.empty())
        return Next::goOn;

    const std::size_t answer = run.with.mac.alerts.ask(
        {.title = "Close Apps",
         .text = "In order to proceed, the following apps must be closed:\n\n" + joined(affected, "\n"),
         .buttons = {"Close All", "Cancel"},
         .style = AlertStyle::warning});
    if (answer != kCloseAll)
        return cancel(run, "User cancelled applying changes due to running apps",
                      "These applications are running and must be closed first: " + joined(affected, ", ") +
                          ".");

    std::vector<ApplicationInfo> left;
    for (const ApplicationInfo& app : affected) {
        log("Force quitting " + app.name);
        ignoreFailure(run.with.mac.workspace.forceTerminate(app.bundleID));
        run.with.mac.clock.sleep(kAfterForceQuit);
        if (isRunning(run, app.bundleID)) {
            log("Failed to force quit " + app.name);
            left.push_back(app);
        }
    }
    if (!left.empty()) {
        run.with.mac.alerts.ask({.title = "Unable to close apps",
                                 .text = "The following apps could not be closed:\n\n• " +
                                         joined(left, "\n• ") + "\n\nPlease close them manually and try again.",
                                 .buttons = {"OK"},
                                 .style = AlertStyle::warning});
        return cancel(run, "User cancelled after apps failed to close",
                      "These applications could not be closed: " + joined(left, ", ") +
                          ". Close them by hand, and try again.");
    }
    run.with.mac.clock.sleep(kAfterClosing);
    return Next::goOn;
}

} // namespace tavrik
