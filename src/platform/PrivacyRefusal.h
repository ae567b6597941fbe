#pragma once

#include "platform/Result.h"

#include <cerrno>

namespace tavrik {

/// Whether macOS itself refused, for a person's privacy: it answers EPERM then, and EACCES where only the
/// rights of a file stand in the way. The person can allow it in the system's settings; trying again without
/// that is of no use.
inline bool isPrivacyRefusal(const Error& error) {
    return error.code == EPERM;
}

} // namespace tavrik
