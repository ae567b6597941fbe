#include "model/SupportFolderLock.h"

#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "platform/Utf8.h"
#include "platform/Volume.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

namespace tavrik {

namespace {

constexpr const char* kLockFile = ".lock";

/// Each time around, somebody else had the lock and let it go within that moment.
constexpr int kMostTries = 20;

constexpr std::size_t kLongestHolder = 200; // bytes

/// The first line of the lock file, which anybody may have written.
std::string holderOf(const FileManager& files, const MacPath& file) {
    const auto content = files.read(file, kLongestHolder);
    std::string name(content ? textOf(*content) : std::string_view());
    name.erase(std::find(name.begin(), name.end(), '\n'), name.end());
    const bool isPlain =
        std::none_of(name.begin(), name.end(), [](unsigned char c) { return c < ' ' || c == 0x7f; });
    return name.empty() || !isPlain || !isUtf8(name) ? "another Tavrik" : name;
}

Error held(const std::string& holder) {
    return {"Nothing was changed, because " + holder +
                " is using Tavrik's files at the moment. Wait until it is done, or quit it, and try again.",
            EWOULDBLOCK};
}

Error impossible(const MacPath& place, const std::string& why, int code) {
    return {"Nothing was changed, because " + place.string() + " " + why, code};
}

} // namespace

Result<SupportFolderLock> SupportFolderLock::take(const Mac& mac, const MacPath& supportFolder,
                                                  std::string_view holder) {
    const auto folder = mac.files.attributes(supportFolder, Links::dontFollow);
    if (!folder)
        return impossible(supportFolder,
                          std::string("cannot be used: ") + std::strerror(folder.error().code) + ".",
                          folder.error().code);
    if (folder->type != FileType::folder)
        return impossible(supportFolder,
                          "is not a folder of its own. Put a real folder in its place; a link is not followed.",
                          ENOTDIR);

    // The folder's place is asked for, not the file's: that would follow a link.
    const HostPath place = mac.volume.hostPath(supportFolder);
    if (place.empty())
        return impossible(supportFolder, "was moved away. Try again.", ENOENT);
    const HostPath file = place / kLockFile;
    const MacPath shown = supportFolder / kLockFile;
    const std::string content = std::string(holder) + " (process " + std::to_string(::getpid()) + ")\n";
    for (int attempt = 0; attempt < kMostTries; ++attempt) {
        const auto standing = mac.files.attributes(shown, Links::dontFollow);
        if (standing && standing->type != FileType::file)
            return impossible(shown, "is not a plain file. Remove it and try again.", EINVAL);
        auto lock = FileLock::take(file, FileLock::Wait::no);
        if (!lock && errno == EWOULDBLOCK)
            return held(holderOf(mac.files, shown));
        if (!lock) {
            const int code = errno;
            return impossible(shown, std::string("cannot be locked: ") + std::strerror(code) + ".", code);
        }
        if (!lock->isOf(file))
            continue;
        // A holder without a name is a nuisance on a full disk, no danger.
        const bool isNamed = !lock->setContent(bytesOf(content));
        ignoreFailure(isNamed);
        return SupportFolderLock(std::move(*lock), file);
    }
    return held("another Tavrik");
}

SupportFolderLock::SupportFolderLock(FileLock lock, HostPath file)
    : m_lock(std::move(lock)),
      m_file(std::move(file)) {}

SupportFolderLock::SupportFolderLock(SupportFolderLock&& other) noexcept
    : m_lock(std::exchange(other.m_lock, std::nullopt)),
      m_file(std::move(other.m_file)) {}

SupportFolderLock::~SupportFolderLock() {
    if (!m_lock)
        return;
    const bool isRemoved = !m_lock->removeFile(m_file);
    ignoreFailure(isRemoved);
}

} // namespace tavrik
