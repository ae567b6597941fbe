#include "platform/FileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace tavrik {

namespace {

FileDescriptor openExisting(const HostPath& path) {
    return FileDescriptor::open(AT_FDCWD, path.string(), O_RDONLY | O_NOFOLLOW);
}

bool lock(const FileDescriptor& file, int operation) {
    int outcome = 0;
    do
        outcome = ::flock(file.number(), operation);
    while (outcome != 0 && errno == EINTR);
    return outcome == 0;
}

} // namespace

std::optional<FileLock> FileLock::take(const HostPath& file, Wait wait) {
    return take(FileDescriptor::open(AT_FDCWD, file.string(), O_RDWR | O_CREAT | O_NOFOLLOW, 0600), wait);
}

std::optional<FileLock> FileLock::takeExisting(const HostPath& path, Wait wait) {
    return take(openExisting(path), wait);
}

std::optional<FileLock> FileLock::take(FileDescriptor opened, Wait wait) {
    if (!opened || !lock(opened, wait == Wait::yes ? LOCK_EX : LOCK_EX | LOCK_NB))
        return std::nullopt;
    return FileLock(std::move(opened));
}

bool FileLock::isHeld(const HostPath& file) {
    const FileDescriptor opened = openExisting(file);
    return opened && !lock(opened, LOCK_SH | LOCK_NB) && errno == EWOULDBLOCK;
}

bool FileLock::isOf(const HostPath& path) const {
    struct stat mine{};
    struct stat there{};
    return ::fstat(m_file.number(), &mine) == 0 && ::lstat(path.string().c_str(), &there) == 0 &&
           mine.st_dev == there.st_dev && mine.st_ino == there.st_ino;
}

std::error_code FileLock::setContent(ByteView content) {
    if (::ftruncate(m_file.number(), 0) != 0 || ::lseek(m_file.number(), 0, SEEK_SET) != 0)
        return lastError();
    return m_file.writeAll(content);
}

std::error_code FileLock::removeFile(const HostPath& path) const {
    if (!isOf(path))
        return std::make_error_code(std::errc::no_such_file_or_directory);
    return ::unlink(path.string().c_str()) == 0 ? std::error_code() : lastError();
}

} // namespace tavrik
