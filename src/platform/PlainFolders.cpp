#include "platform/PlainFolders.h"

#include "platform/FileManager.h"

#include <cerrno>

namespace tavrik {

Status checkPlainFolders(const FileManager& files, const MacPath& root, const MacPath& folder) {
    MacPath path = folder;
    for (;;) {
        const auto present = files.attributes(path, Links::dontFollow);
        if (!present && present.error().code != ENOENT)
            return present.error();
        if (present && present->type != FileType::folder)
            return Error{path.string() + " is no plain folder", ENOTDIR};
        if (path == root || path == path.parent())
            return Done{};
        path = path.parent();
    }
}

Status createPlainFolder(FileManager& files, const MacPath& root, const MacPath& folder) {
    if (Status safe = checkPlainFolders(files, root, folder); !safe)
        return safe;
    MacPath present = folder;
    while (present != root && !files.exists(present))
        present = present.parent();
    if (present == folder)
        return Done{};
    if (Status created = files.createFolder(folder); !created)
        return created;
    // Each new folder is an entry of the one above it.
    for (MacPath above = folder.parent();; above = above.parent()) {
        if (Status flushed = files.flush(above); !flushed || above == present)
            return flushed;
    }
}

} // namespace tavrik
