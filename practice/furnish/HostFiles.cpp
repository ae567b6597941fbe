#include "practice/furnish/HostFiles.h"

#include "platform/FileDescriptor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cmath>
#include <filesystem>

namespace tavrik::practice {

Error hostError(const char* action, const HostPath& path, std::error_code failure) {
    return {std::string("Cannot ") + action + " " + path.string() + ": " + failure.message(), failure.value()};
}

Result<Bytes> readHostFile(const HostPath& file) {
    FileDescriptor descriptor = FileDescriptor::open(AT_FDCWD, file.string(), O_RDONLY);
    if (!descriptor)
        return hostError("open", file, lastError());
    Bytes content;
    std::array<std::uint8_t, 65536> chunk;
    for (;;) {
        const ssize_t got = descriptor.read(chunk);
        if (got < 0)
            return hostError("read", file, lastError());
        if (got == 0)
            return content;
        content.insert(content.end(), chunk.begin(), chunk.begin() + got);
    }
}

Status createHostFile(const HostPath& file, ByteView content, mode_t mode) {
    FileDescriptor descriptor =
        FileDescriptor::open(AT_FDCWD, file.string(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, mode);
    if (!descriptor)
        return hostError("make", file, lastError());
    std::error_code failure = ::fchmod(descriptor.number(), mode) == 0 ? std::error_code() : lastError();
    if (!failure)
        failure = descriptor.writeAll(content);
    if (!failure)
        failure = descriptor.close();
    if (!failure)
        return Done{};
    ::unlink(file.string().c_str());
    return hostError("write", file, failure);
}

Status createHostFolder(const HostPath& folder, mode_t mode) {
    if (::mkdir(folder.string().c_str(), mode) == 0)
        return ::chmod(folder.string().c_str(), mode) == 0
                   ? Status(Done{})
                   : hostError("set the rights of", folder, lastError());
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
    return hostError("make the folder", folder, lastError());
}

Status removeHostTree(const HostPath& path) {
    std::error_code failure;
    std::filesystem::remove_all(path.string(), failure);
    if (!failure)
        return Done{};
    return hostError("remove", path, failure);
}

Status renameHost(const HostPath& from, const HostPath& to) {
    if (::rename(from.string().c_str(), to.string().c_str()) == 0)
        return Done{};
    return hostError("rename", from, lastError());
}

Status setHostDate(const HostPath& path, Date date) {
    const double moment = date.sinceReference + kReferenceSinceUnixEpoch;
    timespec time{};
    time.tv_sec = static_cast<time_t>(std::floor(moment));
    time.tv_nsec = static_cast<long>((moment - std::floor(moment)) * 1e9);
    const std::array<timespec, 2> times{time, time};
    if (::utimensat(AT_FDCWD, path.string().c_str(), times.data(), AT_SYMLINK_NOFOLLOW) == 0)
        return Done{};
    return hostError("date", path, lastError());
}

} // namespace tavrik::practice
