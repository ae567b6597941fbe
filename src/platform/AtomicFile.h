#pragma once

#include "platform/FileManager.h"

namespace tavrik {

/// Replaces a file's content in one step: a temporary file beside it (0600, made exclusively, no link
/// followed), flushed, renamed over it, and the folder flushed, every result checked. After a failure the old
/// content stands and no temporary is left; after a kill a temporary named like the file with ".new" at the end
/// may stay, and the next write removes it. Background thread; blocks on the disk. Two writers of one file must
/// take turns.
Status writeAtomically(FileManager& files, const MacPath& file, ByteView data);

/// The same for a file that must not be there yet: complete and flushed with its folder, or absent. Fails when
/// anything is there.
Status createAtomically(FileManager& files, const MacPath& file, ByteView data);

} // namespace tavrik
