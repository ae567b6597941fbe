#pragma once

#include "platform/Path.h"

#include <array>

namespace tavrik {

/// The standard folders of applications, in the order in which an application is looked for by its name.
inline std::array<MacPath, 5> standardAppFolders(const MacPath& home) {
    return {MacPath("/Applications"), MacPath("/Applications/Utilities"), MacPath("/System/Applications"),
            MacPath("/System/Applications/Utilities"), home / "Applications"};
}

} // namespace tavrik
