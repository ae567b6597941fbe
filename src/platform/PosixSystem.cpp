#include "platform/PosixSystem.h"

#include "platform/FileDescriptor.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace tavrik {

std::error_code flushToDisk(int descriptor) {
#ifdef __APPLE__
    if (::fcntl(descriptor, F_FULLFSYNC) == 0)
        return {};
#endif
    int result = -1;
    do
        result = ::fsync(descriptor);
    while (result != 0 && errno == EINTR);
    return result == 0 ? std::error_code() : lastError();
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
