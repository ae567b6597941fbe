#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace tavrik {

/// The public half of an Ed25519 key that answers may be signed with.
struct TrustedKey {
    std::string id; ///< letters, digits, "-" and "."; never used again for another key
    std::array<std::uint8_t, 32> bytes;
};

/// The key in use, and the spare one, whose private half lies in another place, for the day when the first is
/// lost or known to others. Whoever runs the service puts their own here; nobody has the private halves of
/// these.
const std::vector<TrustedKey>& trustedKeys();

} // namespace tavrik
