#pragma once

#include "platform/Path.h"

#include <string>

namespace tavrik::macos {

/// The program's own bundle. The window and the companion lie in the same one, so they have the same settings,
/// whichever of the two runs and by whatever link it was called.
struct ProgramBundle {
    std::string identifier; ///< empty where the program lies in no bundle
    MacPath resources;      ///< the folder; beside the program where it lies in no bundle
    MacPath plugins;        ///< the folder; empty where the program lies in no bundle
};

ProgramBundle findProgramBundle();

} // namespace tavrik::macos
