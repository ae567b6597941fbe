#pragma once

#include "remote/RemoteKind.h"

#include <string_view>

namespace tavrik {

class UserDefaults;

/// Switches all use of the network off for good, a manual check included. Anything but an explicit "false"
/// counts.
inline constexpr std::string_view kNetworkDisabledKey = "NetworkDisabled";

/// What the person said about the network.
struct NetworkChoice {
    int starts = 0; ///< of the window, counted up to 2
    bool isAsked = false;
    bool wantsTexts = false;
    bool wantsUpdates = false;
    bool isOffForGood = false;

    /// Whether a service may send requests by itself.
    bool allows(RemoteKind kind) const;

    /// The one question: at the second start, and never again once it was answered.
    bool isQuestionDue() const;

    bool operator==(const NetworkChoice&) const = default;
};

/// Keeps the choice in the user defaults. Blocks: background only.
class NetworkConsent {
public:
    explicit NetworkConsent(UserDefaults& defaults);

    NetworkChoice read() const;

    /// Counts a start of the window, and reads.
    NetworkChoice countStart();

    /// Keeps whether the person was asked and which services they want, and leaves the switch for good as it
    /// is. False, with a log line, when it could not be written.
    [[nodiscard]] bool write(const NetworkChoice& choice);

    /// Likewise, the switch for good alone.
    [[nodiscard]] bool writeOffForGood(bool isOff);

private:
    UserDefaults& m_defaults;
};

} // namespace tavrik
