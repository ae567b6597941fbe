#pragma once

#include "platform/Path.h"

#include <string>
#include <vector>

namespace tavrik {

struct ApplyServices;

/// What is kept for applications that are not installed.
struct OrphanedIcons {
    std::vector<MacPath> caches;            ///< folders of icons
    std::vector<std::string> selectedIcons; ///< bundle identifiers in the settings

    bool empty() const { return caches.empty() && selectedIcons.empty(); }
};

/// Nothing while the list of applications is empty or cannot be read, for then it says nothing about who is
/// installed. An application that lies in a standard folder counts as installed whatever Launchpad says, and so
/// does one that Launchpad knows and does not list, since it stands on a volume that is not there for one.
/// Changes nothing. Background thread; blocks on the disk.
OrphanedIcons orphanedIcons(const ApplyServices& with);

/// Deletes what `orphanedIcons` finds: the folders, and the entries in one write of the settings.
void cleanUpOrphanedIcons(const ApplyServices& with);

} // namespace tavrik
