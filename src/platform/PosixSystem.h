#pragma once

#include <sys/stat.h>

#include <string>
#include <system_error>

/// The few calls in which macOS and other POSIX systems differ.
namespace tavrik {

/// Waits until an open file's content is on stable storage. On macOS that takes more than fsync, which leaves
/// it in the drive's own memory.
[[nodiscard]] std::error_code flushToDisk(int descriptor);

/// Renames, unless something is at `to`. Where the system has no such call, something that appears at `to` in
/// the same instant may be replaced.
[[nodiscard]] std::error_code renameExclusively(const std::string& from, const std::string& to);

timespec modificationTime(const struct stat& status);

/// The modification time where POSIX is all there is.
timespec creationTime(const struct stat& status);

} // namespace tavrik
