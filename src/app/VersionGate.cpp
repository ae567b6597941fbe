#include "app/VersionGate.h"

#include "platform/Alerts.h"
#include "platform/Machine.h"

namespace tavrik {

namespace {

constexpr int kFirstUnsupported = 26;
constexpr int kItsOtherName = 16;

} // namespace

bool isSupported(const SystemVersion& version) {
    return version.major < kFirstUnsupported && version.major != kItsOtherName;
}

std::string textOf(const SystemVersion& version) {
    return std::to_string(version.major) + "." + std::to_string(version.minor) + "." +
           std::to_string(version.patch);
}

bool passesVersionGate(const Machine& machine, Alerts& alerts) {
    const SystemVersion version = machine.systemVersion();
    if (isSupported(version))
        return true;
    alerts.ask({.title = "Unsupported macOS Version",
                .text = "Unfortunately your current macOS version (" + textOf(version) +
                        ") is not supported by Tavrik.\n\nPlease return on macOS 15 Seqouia or earlier to "
                        "continue.",
                .buttons = {"Quit"},
                .style = AlertStyle::warning});
    return false;
}

} // namespace tavrik
