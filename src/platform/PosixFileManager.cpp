#include "platform/PosixFileManager.h"

#include "platform/FileDescriptor.h"
#include "platform/OpenFolder.h"
#include "platform/PosixSystem.h"
#include "platform/PosixTree.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cmath>

namespace tavrik {

namespace {

constexpr double kNanosecondsPerSecond = 1e9;
constexpr double kLatestMoment = 9e15; // seconds since 1970; whole seconds up to it are exact

FileType typeOf(mode_t mode) {
    if (S_ISREG(mode))
        return FileType::file;
    if (S_ISDIR(mode))
        return FileType::folder;
    return S_ISLNK(mode) ? FileType::symbolicLink : FileType::other;
}

Date dateOf(const timespec& time) {
    return dateFromUnix(static_cast<double>(time.tv_sec) +
                        static_cast<double>(time.tv_nsec) / kNanosecondsPerSecond);
}

timespec timeOf(Date date) {
    const double seconds = std::floor(toUnix(date));
    const double nanoseconds = (toUnix(date) - seconds) * kNanosecondsPerSecond;
    return {static_cast<time_t>(seconds), static_cast<long>(nanoseconds)};
}

/// Makes one folder, the one above being there.
std::error_code makeFolder(const std::string& path) {
    if (::mkdir(path.c_str(), S_IRWXU) != 0 || ::chmod(path.c_str(), S_IRWXU) != 0)
        return lastError();
    return {};
}

} // namespace

PosixFileManager::PosixFileManager(HostPath root) : m_root(std::move(root)) {}

bool PosixFileManager::exists(const MacPath& path) const {
    struct stat status{};
    return !look(path, Links::follow, status);
}

Result<FileAttributes> PosixFileManager::attributes(const MacPath& path, Links links) const {
    struct stat status{};
    if (const auto failed = look(path, links, status))
        return failure(path, failed);
    return FileAttributes{.type = typeOf(status.st_mode),
                          .size = static_cast<std::uint64_t>(status.st_size),
                          .modified = dateOf(modificationTime(status)),
                          .created = dateOf(creationTime(status)),
                          .permissions = static_cast<std::uint32_t>(status.st_mode & 07777),
                          .fileID = static_cast<std::uint64_t>(status.st_ino)};
}

Result<std::vector<std::string>> PosixFileManager::list(const MacPath& folder) const {
    const auto host = locate(folder, Links::follow);
    if (!host)
        return host.error();
    OpenFolder opened = OpenFolder::open(AT_FDCWD, *host, 0);
    if (!opened)
        return failure(folder, lastError());
    std::vector<std::string> names;
    if (const auto failed = opened.list(names))
        return failure(folder, failed);
    return names;
}

Status PosixFileManager::copy(const MacPath& from, const MacPath& to) {
    const auto source = locate(from, Links::dontFollow);
    if (!source)
        return source.error();
    const auto target = locateEntry(to);
    if (!target)
        return target.error();
    struct stat status{};
    if (::lstat(source->c_str(), &status) != 0)
        return failure(from, lastError());
    if (::lstat(target->c_str(), &status) == 0)
        return failure(to, std::errc::file_exists);

    const std::string unfinished = *target + kUnfinishedCopy;
    const auto removed = removeTree(AT_FDCWD, unfinished);
    if (removed && removed != std::errc::no_such_file_or_directory)
        return failure(to, removed);
    auto failed = copyTree(*source, unfinished);
    if (!failed)
        failed = renameExclusively(unfinished, *target);
    if (!failed)
        return Done{};
    ignoreFailure(!removeTree(AT_FDCWD, unfinished));
    return failure(to, failed);
}

Status PosixFileManager::move(const MacPath& from, const MacPath& to) {
    const auto source = locateEntry(from);
    if (!source)
        return source.error();
    const auto target = locateEntry(to);
    if (!target)
        return target.error();
    if (const auto failed = renameExclusively(*source, *target))
        return failure(failed == std::errc::no_such_file_or_directory ? from : to, failed);
    return Done{};
}

Status PosixFileManager::replace(const MacPath& original, const MacPath& replacement) {
    const auto target = locateEntry(original);
    if (!target)
        return target.error();
    const auto source = locateEntry(replacement);
    if (!source)
        return source.error();
    // Opened first, so that little is left to fail once the new content is in place.
    FileDescriptor folder =
        FileDescriptor::open(AT_FDCWD, HostPath(*target).parent().string(), O_RDONLY | O_DIRECTORY);
    if (!folder)
        return failure(original.parent(), lastError());
    if (::rename(source->c_str(), target->c_str()) != 0)
        return failure(original, lastError());
    if (const auto failed = folder.flush())
        return failure(original.parent(), failed);
    return Done{};
}

Status PosixFileManager::remove(const MacPath& path) {
    const auto host = locateEntry(path);
    if (!host)
        return host.error();
    if (const auto failed = removeTree(AT_FDCWD, *host))
        return failure(path, failed);
    return Done{};
}

Status PosixFileManager::createFolder(const MacPath& folder) {
    const auto present = attributes(folder);
    if (present && present->type == FileType::folder)
        return Done{};
    if (present)
        return failure(folder, std::errc::file_exists);
    if (present.error().code != ENOENT || folder.empty() || folder == folder.parent())
        return present.error();
    if (auto above = createFolder(folder.parent()); !above)
        return above;
    const auto host = locate(folder, Links::dontFollow);
    if (!host)
        return host.error();
    const auto failed = makeFolder(*host);
    if (!failed)
        return Done{};
    // Another thread or program may have made it meanwhile.
    const auto now = attributes(folder);
    if (now && now->type == FileType::folder)
        return Done{};
    return failure(folder, failed);
}

Status PosixFileManager::createLink(const MacPath& link, const std::string& target) {
    const auto host = locateEntry(link);
    if (!host)
        return host.error();
    if (target.find('\0') != std::string::npos)
        return failure(link, std::errc::invalid_argument);
    if (::symlink(target.c_str(), host->c_str()) != 0)
        return failure(link, lastError());
    return Done{};
}

Result<std::string> PosixFileManager::readLink(const MacPath& link) const {
    const auto host = locate(link, Links::dontFollow);
    if (!host)
        return host.error();
    std::array<char, PATH_MAX> target{};
    const ssize_t length = ::readlink(host->c_str(), target.data(), target.size());
    if (length < 0)
        return failure(link, lastError());
    return std::string(target.data(), static_cast<std::size_t>(length));
}

Status PosixFileManager::setModified(const MacPath& path, Date date) {
    const auto host = locate(path, Links::follow);
    if (!host)
        return host.error();
    if (!(std::abs(toUnix(date)) < kLatestMoment))
        return failure(path, std::errc::invalid_argument);
    const std::array<timespec, 2> times{timespec{0, UTIME_OMIT}, timeOf(date)};
    if (::utimensat(AT_FDCWD, host->c_str(), times.data(), 0) != 0)
        return failure(path, lastError());
    return Done{};
}

Result<std::uint64_t> PosixFileManager::availableSpace(const MacPath& folder) const {
    const auto host = locate(folder, Links::follow);
    if (!host)
        return host.error();
    struct statvfs disk{};
    if (::statvfs(host->c_str(), &disk) != 0)
        return failure(folder, lastError());
    return std::uint64_t{disk.f_bavail} * disk.f_frsize;
}

} // namespace tavrik
