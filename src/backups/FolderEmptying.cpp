#include "backups/FolderEmptying.h"

#include "platform/FileManager.h"
#include "platform/PlainFolders.h"

#include <cerrno>

namespace tavrik {

Result<Emptied> emptyFolder(FileManager& files, const MacPath& folder, const std::set<std::string>& spared) {
    if (const Status plain = checkPlainFolders(files, folder, folder); !plain)
        return plain.error();
    const auto names = files.list(folder);
    if (!names && names.error().code != ENOENT)
        return names.error();
    Emptied emptied;
    if (!names)
        return emptied;
    for (const std::string& name : *names) {
        if (spared.contains(name))
            continue;
        const Status removed = files.remove(folder / name);
        if (removed)
            ++emptied.removed;
        else if (removed.error().code != ENOENT)
            emptied.left.push_back(name);
    }
    return emptied;
}

} // namespace tavrik
