#pragma once

#include "platform/Path.h"
#include "platform/Result.h"

namespace tavrik::practice {

/// Programs of the build that stand for programs of the Mac.
struct Programs {
    HostPath tool; ///< one program for all system tools; it acts by the name it is installed under
    HostPath dock;
};

/// Makes sure that a practice Mac stands in this folder: furnishes it when the folder is missing or empty (in a
/// folder beside it that is renamed when complete, so that a kill never leaves half a Mac), and otherwise
/// leaves everything as it is but the programs, which are brought up to date. An error when the folder holds
/// something that is no practice Mac.
Status furnish(const HostPath& root, const Programs& programs);

/// Puts a practice Mac away and furnishes a new one in its place. Refuses a folder that is no practice Mac.
Status furnishAnew(const HostPath& root, const Programs& programs);

/// The folder where people's practice Mac stands: "Tavrik/PracticeMac" in the user's data folder by the
/// platform's convention.
HostPath defaultRoot();

} // namespace tavrik::practice
