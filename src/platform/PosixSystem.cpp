#include "platform/PosixSystem.h"

#include "platform/FileDescriptor.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace tavrik {

namespace {

/// Calls again what a signal cut short.
template<typename Call>
std::error_code untilDone(Call call) {
    int result = -1;
    do
        result = call();
    while (result == -1 && errno == EINTR);
    return result == -1 ? lastError() : std::error_code();
}

} // namespace

std::error_code flushToDisk(int descriptor) {
#ifdef __APPLE__
    const auto flushed = untilDone([descriptor] { return ::fcntl(descriptor, F_FULLFSYNC); });
    // Volumes of other kinds, on a network above all, may not know the request. What has failed on the disk
    // itself must not pass for that.
    if (!flushed || flushed == std::errc::io_error || flushed == std::errc::no_space_on_device)
        return flushed;
#endif
    return untilDone([descriptor] { return ::fsync(descriptor); });
}

std::error_code renameExclusively(const std::string& from, const std::string& to) {
#ifdef __APPLE__
    if (::renamex_np(from.c_str(), to.c_str(), RENAME_EXCL) == 0)
        return {};
    if (errno != ENOTSUP)
        return lastError();
#endif
    struct stat status{};
    if (::lstat(to.c_str(), &status) == 0)
        return std::make_error_code(std::errc::file_exists);
    if (errno != ENOENT || ::rename(from.c_str(), to.c_str()) != 0)
        return lastError();
    return {};
}

timespec modificationTime(const struct stat& status) {
#ifdef __APPLE__
    return status.st_mtimespec;
#else
    return status.st_mtim;
#endif
}

timespec creationTime(const struct stat& status) {
#ifdef __APPLE__
    return status.st_birthtimespec;
#else
    return modificationTime(status);
#endif
}

} // namespace tavrik
