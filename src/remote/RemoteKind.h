#pragma once

#include <array>
#include <string_view>

namespace tavrik {

/// The two things that the program may ask the network for.
enum class RemoteKind { texts, updates };

inline constexpr std::array kRemoteKinds{RemoteKind::texts, RemoteKind::updates};

/// The name inside signed answers: "texts" or "updates".
std::string_view nameOf(RemoteKind kind);

} // namespace tavrik
