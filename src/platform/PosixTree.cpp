#include "platform/PosixTree.h"

#include "platform/FileDescriptor.h"
#include "platform/OpenFolder.h"
#include "platform/PosixSystem.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <optional>
#include <string_view>
#include <vector>

namespace tavrik {

namespace {

constexpr std::size_t kCopyBlock = 256u << 10; // bytes

std::error_code statusOf(int folder, const std::string& name, struct stat& status) {
    return ::fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0 ? std::error_code() : lastError();
}

std::error_code copyContent(FileDescriptor& from, FileDescriptor& to) {
    Bytes block(kCopyBlock);
    for (;;) {
        const ssize_t count = from.read(block);
        if (count < 0)
            return lastError();
        if (count == 0)
            return {};
        if (const auto failed = to.writeAll(ByteView(block).first(static_cast<std::size_t>(count))))
            return failed;
    }
}

std::error_code copyFile(int fromFolder, const std::string& from, int toFolder, const std::string& to) {
    FileDescriptor source = FileDescriptor::open(fromFolder, from, O_RDONLY | O_NOFOLLOW);
    struct stat status{};
    if (!source || ::fstat(source.number(), &status) != 0)
        return lastError();
    const mode_t permissions = S_IRUSR | S_IWUSR | (status.st_mode & S_IXUSR);
    FileDescriptor target =
        FileDescriptor::open(toFolder, to, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, permissions);
    if (!target || ::fchmod(target.number(), permissions) != 0)
        return lastError();
    if (const auto failed = copyContent(source, target))
        return failed;
    const std::array<timespec, 2> times{timespec{0, UTIME_OMIT}, modificationTime(status)};
    if (::futimens(target.number(), times.data()) != 0)
        return lastError();
    if (const auto failed = target.flush())
        return failed;
    return target.close();
}

std::error_code copyLink(int fromFolder, const std::string& from, int toFolder, const std::string& to) {
    std::array<char, PATH_MAX> target{};
    const ssize_t length = ::readlinkat(fromFolder, from.c_str(), target.data(), target.size() - 1);
    if (length < 0 || ::symlinkat(target.data(), toFolder, to.c_str()) != 0)
        return lastError();
    return {};
}

/// Copies one tree. Remembers the copy's own top folder, so that a folder copied into itself is an error and
/// not a walk without an end.
class TreeCopy {
public:
    std::error_code copy(int fromFolder, const std::string& from, int toFolder, const std::string& to) {
        struct stat status{};
        if (const auto failed = statusOf(fromFolder, from, status))
            return failed;
        if (S_ISREG(status.st_mode))
            return copyFile(fromFolder, from, toFolder, to);
        if (S_ISLNK(status.st_mode))
            return copyLink(fromFolder, from, toFolder, to);
        if (S_ISDIR(status.st_mode))
            return copyFolder(fromFolder, from, toFolder, to);
        return std::make_error_code(std::errc::operation_not_supported);
    }

private:
    struct Identity {
        dev_t device;
        ino_t file;

        bool operator==(const Identity&) const = default;
    };

    std::error_code copyFolder(int fromFolder, const std::string& from, int toFolder, const std::string& to) {
        OpenFolder source = OpenFolder::open(fromFolder, from, O_NOFOLLOW);
        struct stat status{};
        if (!source || ::fstat(source.number(), &status) != 0)
            return lastError();
        if (m_top == Identity{status.st_dev, status.st_ino})
            return std::make_error_code(std::errc::invalid_argument);
        if (::mkdirat(toFolder, to.c_str(), S_IRWXU) != 0 || ::fchmodat(toFolder, to.c_str(), S_IRWXU, 0) != 0)
            return lastError();
        const OpenFolder target = OpenFolder::open(toFolder, to, O_NOFOLLOW);
        if (!target || ::fstat(target.number(), &status) != 0)
            return lastError();
        if (!m_top)
            m_top = Identity{status.st_dev, status.st_ino};
        std::vector<std::string> names;
        if (const auto failed = source.list(names))
            return failed;
        for (const std::string& name : names) {
            if (const auto failed = copy(source.number(), name, target.number(), name))
                return failed;
        }
        return {};
    }

    std::optional<Identity> m_top;
};

std::error_code emptyFolder(int folder, const std::string& name) {
    OpenFolder opened = OpenFolder::open(folder, name, O_NOFOLLOW);
    if (!opened)
        return lastError();
    std::vector<std::string> names;
    if (const auto failed = opened.list(names))
        return failed;
    for (const std::string& inner : names) {
        if (const auto failed = removeTree(opened.number(), inner))
            return failed;
    }
    return {};
}

} // namespace

std::error_code removeTree(int folder, const std::string& name) {
    struct stat status{};
    if (const auto failed = statusOf(folder, name, status))
        return failed;
    const bool isFolder = S_ISDIR(status.st_mode);
    if (isFolder) {
        if (const auto failed = emptyFolder(folder, name))
            return failed;
    }
    return ::unlinkat(folder, name.c_str(), isFolder ? AT_REMOVEDIR : 0) == 0 ? std::error_code() : lastError();
}

std::error_code copyTree(const std::string& from, const std::string& to) {
    return TreeCopy().copy(AT_FDCWD, from, AT_FDCWD, to);
}

} // namespace tavrik
