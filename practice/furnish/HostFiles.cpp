#include "practice/furnish/HostFiles.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <utility>

namespace tavrik::practice {

namespace {

class Descriptor {
public:
    explicit Descriptor(int number) : m_number(number) {}

    ~Descriptor() {
        if (m_number >= 0)
            ::close(m_number);
    }

    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return m_number; }

    bool closes() { return ::close(std::exchange(m_number, -1)) == 0; }

private:
    int m_number;
};

bool writeAll(int descriptor, ByteView content) {
    while (!content.empty()) {
        const ssize_t written = ::write(descriptor, content.data(), content.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return false;
        content = content.subspan(static_cast<std::size_t>(written));
    }
    return true;
}

int openForLock(const HostPath& path) {
    return ::open(path.string().c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
}

} // namespace

Error hostError(const char* action, const HostPath& path) {
    const int code = errno;
    return {std::string("Cannot ") + action + " " + path.string() + ": " + std::strerror(code), code};
}

Result<Bytes> readHostFile(const HostPath& file) {
    const Descriptor descriptor(::open(file.string().c_str(), O_RDONLY | O_CLOEXEC));
    if (descriptor.number() < 0)
        return hostError("open", file);
    Bytes content;
    std::array<std::uint8_t, 65536> chunk;
    for (;;) {
        const ssize_t got = ::read(descriptor.number(), chunk.data(), chunk.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return hostError("read", file);
        if (got == 0)
            return content;
        content.insert(content.end(), chunk.begin(), chunk.begin() + got);
    }
}

Status createHostFile(const HostPath& file, ByteView content, mode_t mode) {
    Descriptor descriptor(
        ::open(file.string().c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode));
    if (descriptor.number() < 0)
        return hostError("make", file);
    if (::fchmod(descriptor.number(), mode) == 0 && writeAll(descriptor.number(), content) &&
        descriptor.closes())
        return Done{};
    const Error error = hostError("write", file);
    ::unlink(file.string().c_str());
    return error;
}

Status createHostFolder(const HostPath& folder, mode_t mode) {
    if (::mkdir(folder.string().c_str(), mode) == 0)
        return ::chmod(folder.string().c_str(), mode) == 0 ? Status(Done{})
                                                           : hostError("set the rights of", folder);
    if (errno == ENOENT && folder.parent() != folder && !folder.parent().empty()) {
        if (Status above = createHostFolder(folder.parent(), mode); !above)
            return above;
        return createHostFolder(folder, mode);
    }
    if (errno == EEXIST) {
        struct stat found{};
        if (::stat(folder.string().c_str(), &found) == 0 && S_ISDIR(found.st_mode))
            return Done{};
        errno = ENOTDIR;
    }
    return hostError("make the folder", folder);
}

Status removeHostTree(const HostPath& path) {
    std::error_code failure;
    std::filesystem::remove_all(path.string(), failure);
    if (!failure)
        return Done{};
    return Error{"Cannot remove " + path.string() + ": " + failure.message(), failure.value()};
}

Status renameHost(const HostPath& from, const HostPath& to) {
    if (::rename(from.string().c_str(), to.string().c_str()) == 0)
        return Done{};
    return hostError("rename", from);
}

Status setHostDate(const HostPath& path, Date date) {
    const double moment = date.sinceReference + kReferenceSinceUnixEpoch;
    timespec time{};
    time.tv_sec = static_cast<time_t>(std::floor(moment));
    time.tv_nsec = static_cast<long>((moment - std::floor(moment)) * 1e9);
    const std::array<timespec, 2> times{time, time};
    if (::utimensat(AT_FDCWD, path.string().c_str(), times.data(), AT_SYMLINK_NOFOLLOW) == 0)
        return Done{};
    return hostError("date", path);
}

Result<HostLock> HostLock::take(const HostPath& path) {
    HostLock lock(openForLock(path));
    if (lock.m_descriptor < 0)
        return hostError("open", path);
    int locked = 0;
    do
        locked = ::flock(lock.m_descriptor, LOCK_EX);
    while (locked != 0 && errno == EINTR);
    if (locked != 0)
        return hostError("lock", path);
    return lock;
}

std::optional<HostLock> HostLock::tryTake(const HostPath& path) {
    HostLock lock(openForLock(path));
    if (lock.m_descriptor < 0 || ::flock(lock.m_descriptor, LOCK_EX | LOCK_NB) != 0)
        return std::nullopt;
    return lock;
}

HostLock::HostLock(HostLock&& other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}

HostLock& HostLock::operator=(HostLock&& other) noexcept {
    std::swap(m_descriptor, other.m_descriptor);
    return *this;
}

HostLock::~HostLock() {
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

bool HostLock::holds(const HostPath& path) const {
    struct stat mine{};
    struct stat there{};
    return ::fstat(m_descriptor, &mine) == 0 && ::lstat(path.string().c_str(), &there) == 0 &&
           mine.st_dev == there.st_dev && mine.st_ino == there.st_ino;
}

} // namespace tavrik::practice
