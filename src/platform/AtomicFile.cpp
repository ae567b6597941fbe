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

/// The flushed content beside the file, put in its place by `finish`.
template<typename Finish>
Status throughTemporary(FileManager& files, const MacPath& file, ByteView data, Finish&& finish) {
    const MacPath fresh = file.parent() / (file.name() + ".new");
    if (Status created = createAnew(files, fresh, data); !created)
        return created;
    Status done = files.flush(fresh);
    if (done)
        done = finish(fresh);
    if (!done)
        ignoreFailure(files.remove(fresh));
    return done;
}

} // namespace

Status writeAtomically(FileManager& files, const MacPath& file, ByteView data) {
    return throughTemporary(files, file, data,
                            [&](const MacPath& fresh) { return files.replace(file, fresh); });
}

Status createAtomically(FileManager& files, const MacPath& file, ByteView data) {
    Status created =
        throughTemporary(files, file, data, [&](const MacPath& fresh) { return files.move(fresh, file); });
    if (!created)
        return created;
    Status flushed = files.flush(file.parent());
    if (!flushed)
        ignoreFailure(files.remove(file));
    return flushed;
}

} // namespace tavrik
