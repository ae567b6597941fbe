#include "practice/process/FileLock.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <utility>

namespace tavrik::practice {

namespace {

bool lock(const FileDescriptor& file, int operation) {
    int outcome = 0;
    do
        outcome = ::flock(file.number(), operation);
    while (outcome != 0 && errno == EINTR);
    return outcome == 0;
}

} // namespace

std::optional<FileLock> FileLock::take(const HostPath& file, Wait wait) {
    FileDescriptor opened = FileDescriptor::open(AT_FDCWD, file.string(), O_RDWR | O_CREAT | O_NOFOLLOW, 0600);
    if (!opened || !lock(opened, wait == Wait::yes ? LOCK_EX : LOCK_EX | LOCK_NB))
        return std::nullopt;
    return FileLock(std::move(opened));
}

bool FileLock::isHeld(const HostPath& file) {
    const FileDescriptor opened = FileDescriptor::open(AT_FDCWD, file.string(), O_RDONLY | O_NOFOLLOW);
    return opened && !lock(opened, LOCK_SH | LOCK_NB) && errno == EWOULDBLOCK;
}

} // namespace tavrik::practice
