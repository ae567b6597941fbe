#pragma once

#include "platform/Path.h"

namespace tavrik {

class FileManager;

/// Removes what killed writes of the settings, of what is staged, and of icons left in the program's own
/// folders. Goes by the names that the program gives, follows no link, and leaves everything else. Backups and
/// themes clear their own folders. Not while anything is written there. Blocks on the disk; safe to repeat.
void removeUnfinishedFiles(FileManager& files, const MacPath& supportFolder);

} // namespace tavrik
