#pragma once

#include "platform/Path.h"
#include "platform/Result.h"

namespace tavrik::practice {

/// Programs of the build that stand for programs of the Mac. An empty path leaves its programs out.
struct Programs {
    HostPath tool; ///< one program for all system tools; it acts by the name it is installed under
    HostPath dock;
};

struct FurnishOptions {
    /// Pixels of the largest picture in an application's icon file: 16, 32, 64, 128, 256, 512 or 1024. Drawing
    /// is most of the work, so what only needs a volume asks for small ones.
    int largestIcon = 512;
};

/// Makes sure that a practice Mac stands in this folder: furnishes it when the folder is missing or empty, and
/// otherwise leaves everything as it is but the programs, which are brought up to date. An error when the
/// folder holds something that is no practice Mac.
///
/// The Mac is built in a hidden folder beside it and renamed when complete: a kill leaves at most that folder,
/// which the next call removes. Two programs may furnish one folder at once: the second waits and finds the Mac
/// of the first. Blocks on the disk, for a second or so when it furnishes.
Status furnish(const HostPath& root, const Programs& programs, const FurnishOptions& options = {});

/// Puts a practice Mac away and furnishes a new one in its place. Refuses a folder that is no practice Mac. On
/// failure the old one stands where it was; after a kill the next call of either function puts things right.
Status furnishAnew(const HostPath& root, const Programs& programs, const FurnishOptions& options = {});

/// Whether a practice Mac stands in this folder.
bool isPracticeMac(const HostPath& root);

/// The folder where people's practice Mac stands: "Tavrik/PracticeMac" in the user's data folder by the
/// platform's convention.
HostPath defaultRoot();

} // namespace tavrik::practice
