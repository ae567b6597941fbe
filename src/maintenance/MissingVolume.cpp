#include "maintenance/MissingVolume.h"

#include "platform/FileManager.h"

namespace tavrik {

namespace {

const MacPath kVolumes("/Volumes");

/// Only what the text says.
bool isBelowMissingVolume(const FileManager& files, const MacPath& path) {
    if (path == kVolumes || !path.isInside(kVolumes))
        return false;
    MacPath volume = path;
    while (volume.parent() != kVolumes)
        volume = volume.parent();
    return !files.exists(volume);
}

} // namespace

bool isOnMissingVolume(const FileManager& files, const MacPath& path) {
    if (isBelowMissingVolume(files, path))
        return true;
    for (MacPath part = path; part.parent() != part && !part.empty(); part = part.parent()) {
        const auto target = files.readLink(part);
        if (target && isBelowMissingVolume(files, MacPath(*target)))
            return true;
    }
    return false;
}

} // namespace tavrik
