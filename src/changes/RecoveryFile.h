#pragma once

#include "platform/Path.h"
#include "platform/PropertyList.h"

namespace tavrik {

class FileManager;

/// The recovery file on disk, "PendingChanges/pendingChanges.plist". Blocks on the disk; not locked. A folder
/// or a file that is a symbolic link is never read or written through.
class RecoveryFile {
public:
    RecoveryFile(FileManager& files, const MacPath& folder);

    const MacPath& path() const { return m_path; }

    bool exists() const;

    /// The bytes; an error when it is missing, too large, a link or no plain file.
    Result<Bytes> read() const;
    static Result<plist::Dictionary> parse(const Bytes& content);
    /// Both. The error's code is ENOENT when there is none.
    Result<plist::Dictionary> load() const;

    /// Replaces the whole in one step and logs how it went. True when it is on stable storage; otherwise the
    /// old content stands.
    bool write(const plist::Dictionary& root);

    /// Fine when there is none. True when it is gone on stable storage.
    Status remove();

    /// Moves the file, whatever it is, to "pendingChanges.damaged.plist" beside it, or to the next such name
    /// with a number that is free, so that the next write does not destroy what it may hold.
    Status putAside();

    /// Whether a file was put aside at any time. It names pending icons that nothing else does.
    bool hasOnePutAside() const;

private:
    Status checkFolder() const;

    FileManager& m_files;
    const MacPath m_folder;
    const MacPath m_path;
};

} // namespace tavrik
