#pragma once

#include "platform/FileDescriptor.h"
#include "platform/Path.h"

#include <optional>

namespace tavrik {

/// An advisory lock on a file or folder, held by an open descriptor: it goes with the object, and with the
/// process however that ends. What is locked stays. Two locks exclude each other within one process too.
/// Children do not inherit it.
class FileLock {
public:
    enum class Wait { no, yes };

    /// Makes the file when missing; its folder must exist. Nothing when that fails, or when somebody else holds
    /// the lock and no wait is wanted; errno says why.
    static std::optional<FileLock> take(const HostPath& file, Wait wait);

    /// The same for a file or folder that stands. It makes none.
    static std::optional<FileLock> takeExisting(const HostPath& path, Wait wait);

    /// Whether somebody holds the lock of a file. False also when there is no such file.
    static bool isHeld(const HostPath& file);

    /// Whether what is locked still stands at this path. Whoever held the lock before may have moved it.
    bool isOf(const HostPath& path) const;

    /// Replaces the content of the locked file; not of one that stood and was only looked up.
    [[nodiscard]] std::error_code setContent(ByteView content);

    /// Removes the file while it is still locked, if it stands at this path: whoever gets the lock next learns
    /// of it by `isOf`.
    [[nodiscard]] std::error_code removeFile(const HostPath& path) const;

private:
    static std::optional<FileLock> take(FileDescriptor opened, Wait wait);

    explicit FileLock(FileDescriptor file) : m_file(std::move(file)) {}

    FileDescriptor m_file;
};

} // namespace tavrik
