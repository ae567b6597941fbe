#pragma once

#include "platform/Machine.h"
#include "platform/Path.h"
#include "platform/Result.h"

#include <string>
#include <vector>

namespace tavrik {

struct Mac;

/// Whether macOS lets the program do what an apply, a restore or a removal needs. Found out before the first of
/// them writes, since a refusal in the middle would leave half of it done.

enum class Use { read, list, write };

struct RefusedPlace {
    MacPath place;
    Use use = Use::read;

    bool operator==(const RefusedPlace&) const = default;
};

/// Where in the system's settings the person can allow it.
enum class PrivacyPane { fullDiskAccess, appManagement };

/// What macOS refuses for privacy's sake. Tries the beginning of the Dock's preferences and of the Launchpad
/// database, the list of each applications folder, and a new empty file, removed at once, in the folders of
/// preferences, wrappers and support files, or in the nearest one above that is there. Nothing is made in the
/// Launchpad database's folder, which is the Dock's alone. What is missing or fails for another reason is not
/// told. A kill may leave an empty ".tavrik-access", which the next check removes. Blocks on the disk; any
/// thread.
std::vector<RefusedPlace> refusedPlaces(const Mac& mac, const MacPath& supportFolder);

/// Only of some refused place.
PrivacyPane paneFor(const std::vector<RefusedPlace>& refused, const SystemVersion& version);

/// What is refused and what the person can do, in the names that this system has for its settings. A place
/// inside of another one that is refused is not named. Empty when nothing is refused.
std::string inWords(const std::vector<RefusedPlace>& refused, const SystemVersion& version,
                    const MacPath& home);

/// All of it at once: an error of code EPERM, as a refused file operation has it, when anything is refused.
Status checkAccess(const Mac& mac, const MacPath& supportFolder);

} // namespace tavrik
