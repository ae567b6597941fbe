#pragma once

#include "remote/RemoteKind.h"

#include <QUrl>

#include <optional>
#include <string>
#include <string_view>

namespace tavrik {

class UserDefaults;

/// The user defaults that may hold another address for a service, a string each.
inline constexpr std::string_view kTextsAddressKey = "UIStringsURL";
inline constexpr std::string_view kUpdatesAddressKey = "UpdateFeedURL";

/// The address when it is one that may be asked: https, or http of this machine alone (127.0.0.1, ::1,
/// localhost); with a host, without user, password and fragment, and no longer than 2,000 characters.
std::optional<QUrl> acceptableAddress(std::string_view address);

/// Whether it leads to this machine itself.
bool isThisMachine(const QUrl& url);

/// What a request asks a server for: the path, "/" when there is none, with the query.
std::string requestTarget(const QUrl& url);

/// Where a service is asked: the address in the user defaults, else the built-in one. Nothing when the user
/// defaults hold an address that may not be asked: whoever set one does not want the built-in one asked.
std::optional<QUrl> endpointOf(RemoteKind kind, const UserDefaults& defaults);

} // namespace tavrik
