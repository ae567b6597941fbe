#pragma once

#include "platform/FileLock.h"
#include "platform/Path.h"
#include "platform/Result.h"

#include <optional>
#include <string_view>

namespace tavrik {

struct Mac;

/// The right to write below the support folder and to change what belongs to it. Without it two windows, or a
/// window and a companion, would stage, number and apply over each other's changes.
///
/// It is a lock on the file ".lock" in that folder, held by an open descriptor: it goes with the object, and
/// with the process however that ends. The file names its holder and is removed with the lock; a kill leaves
/// it, unlocked, and the next holder takes it over.
class SupportFolderLock {
public:
    /// Never waits. `holder` is what a person would call this program: "tavrikctl". The error is a sentence fit
    /// to be shown: who holds it (its code is EWOULDBLOCK then), or why it cannot be taken (the folder is
    /// missing, read-only, a link).
    static Result<SupportFolderLock> take(const Mac& mac, const MacPath& supportFolder,
                                          std::string_view holder);

    SupportFolderLock(SupportFolderLock&& other) noexcept;
    SupportFolderLock& operator=(SupportFolderLock&&) = delete;
    ~SupportFolderLock();

private:
    SupportFolderLock(FileLock lock, HostPath file);

    std::optional<FileLock> m_lock; ///< gone when it was moved
    HostPath m_file;
};

} // namespace tavrik
