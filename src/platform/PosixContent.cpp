#include "platform/FileDescriptor.h"
#include "platform/PosixFileManager.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace tavrik {

namespace {

constexpr mode_t kOwnerOnly = S_IRUSR | S_IWUSR;
constexpr std::size_t kLeastBuffer = 4096; // bytes

std::error_code expectPlainFile(const FileDescriptor& file, struct stat& status) {
    if (::fstat(file.number(), &status) != 0)
        return lastError();
    if (S_ISDIR(status.st_mode))
        return std::make_error_code(std::errc::is_a_directory);
    return S_ISREG(status.st_mode) ? std::error_code() : std::make_error_code(std::errc::invalid_argument);
}

std::error_code openPlainFile(const std::string& path, FileDescriptor& file, struct stat& status) {
    file = FileDescriptor::open(AT_FDCWD, path, O_RDONLY);
    return file ? expectPlainFile(file, status) : lastError();
}

/// The file may be longer or shorter than it was when asked for its size.
std::error_code readToEnd(FileDescriptor& file, std::size_t expected, std::size_t most, Bytes& content) {
    content.resize(std::max(expected + 1, kLeastBuffer));
    std::size_t filled = 0;
    for (;;) {
        const ssize_t count = file.read(std::span(content).subspan(filled));
        if (count < 0)
            return lastError();
        if (count == 0)
            break;
        filled += static_cast<std::size_t>(count);
        if (filled > most)
            return std::make_error_code(std::errc::file_too_large);
        if (filled == content.size())
            content.resize(content.size() * 2);
    }
    content.resize(filled);
    return {};
}

FileDescriptor createFile(const std::string& path) {
    FileDescriptor file =
        FileDescriptor::open(AT_FDCWD, path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, kOwnerOnly);
    if (file && ::fchmod(file.number(), kOwnerOnly) != 0) {
        const int reason = errno;
        ::unlink(path.c_str());
        errno = reason;
        return {};
    }
    return file;
}

std::error_code fill(FileDescriptor& file, ByteView data) {
    if (const auto failed = file.writeAll(data))
        return failed;
    return file.close();
}

} // namespace

Result<Bytes> PosixFileManager::read(const MacPath& file, std::size_t most) const {
    const auto path = locate(file, Links::follow);
    if (!path)
        return path.error();
    FileDescriptor opened;
    struct stat status{};
    if (const auto failed = openPlainFile(*path, opened, status))
        return failure(file, failed);
    const auto size = static_cast<std::size_t>(status.st_size);
    if (size > most)
        return failure(file, std::errc::file_too_large);
    Bytes content;
    if (const auto failed = readToEnd(opened, size, most, content))
        return failure(file, failed);
    return content;
}

Result<Bytes> PosixFileManager::readBeginning(const MacPath& file, std::size_t bytes) const {
    const auto path = locate(file, Links::follow);
    if (!path)
        return path.error();
    FileDescriptor opened;
    struct stat status{};
    if (const auto failed = openPlainFile(*path, opened, status))
        return failure(file, failed);
    Bytes content(bytes);
    std::size_t filled = 0;
    while (filled < bytes) {
        const ssize_t count = opened.read(std::span(content).subspan(filled));
        if (count < 0)
            return failure(file, lastError());
        if (count == 0)
            break;
        filled += static_cast<std::size_t>(count);
    }
    content.resize(filled);
    return content;
}

Status PosixFileManager::write(const MacPath& file, ByteView data) {
    // A dangling link must lead to the file that it names, so that the file can be made exclusively.
    const auto path = hostPath(file, Links::follow);
    if (!path)
        return path.error();
    FileDescriptor opened = FileDescriptor::open(AT_FDCWD, path->string(), O_WRONLY);
    if (!opened && errno == ENOENT)
        opened = createFile(path->string());
    if (!opened)
        return failure(file, lastError());
    struct stat status{};
    if (const auto failed = expectPlainFile(opened, status))
        return failure(file, failed);
    if (status.st_size > 0 && ::ftruncate(opened.number(), 0) != 0)
        return failure(file, lastError());
    if (const auto failed = fill(opened, data))
        return failure(file, failed);
    return Done{};
}

Status PosixFileManager::create(const MacPath& file, ByteView data) {
    const auto path = locate(file, Links::dontFollow);
    if (!path)
        return path.error();
    FileDescriptor opened = createFile(*path);
    if (!opened)
        return failure(file, lastError());
    if (const auto failed = fill(opened, data)) {
        ::unlink(path->c_str());
        return failure(file, failed);
    }
    return Done{};
}

Status PosixFileManager::flush(const MacPath& path) {
    const auto host = locate(path, Links::follow);
    if (!host)
        return host.error();
    FileDescriptor opened = FileDescriptor::open(AT_FDCWD, *host, O_RDONLY);
    if (!opened)
        return failure(path, lastError());
    if (const auto failed = opened.flush())
        return failure(path, failed);
    return Done{};
}

} // namespace tavrik
