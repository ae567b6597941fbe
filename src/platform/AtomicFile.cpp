#include "platform/AtomicFile.h"

#include <cerrno>

namespace tavrik {

namespace {

/// What an earlier, killed write left is in the way; a folder of that name is not ours and stays.
Status createAnew(FileManager& files, const MacPath& file, ByteView data) {
    Status created = files.create(file, data);
    if (created || created.error().code != EEXIST)
        return created;
    const auto present = files.attributes(file, Links::dontFollow);
    if (present && present->type == FileType::folder)
        return created;
    if (Status removed = files.remove(file); !removed)
        return removed;
    return files.create(file, data);
}

} // namespace

Status writeAtomically(FileManager& files, const MacPath& file, ByteView data) {
    const MacPath fresh = file.parent() / (file.name() + ".new");
    if (Status created = createAnew(files, fresh, data); !created)
        return created;
    Status done = files.flush(fresh);
    if (done)
        done = files.replace(file, fresh);
    if (!done)
        ignoreFailure(files.remove(fresh));
    return done;
}

} // namespace tavrik
