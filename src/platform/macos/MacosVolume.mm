#include "platform/macos/MacosVolume.h"

#include "platform/PosixFileManager.h"
#include "platform/macos/FoundationText.h"

#include <sys/syslimits.h>
#include <unistd.h>

#include <array>

namespace tavrik::macos {

namespace {

MacPath homeFolder() {
    @autoreleasepool {
        return MacPath(toString(NSHomeDirectory()));
    }
}

std::string userTemporaryFolder() {
    std::array<char, PATH_MAX> path{};
    const std::size_t length = ::confstr(_CS_DARWIN_USER_TEMP_DIR, path.data(), path.size());
    if (length > 0 && length <= path.size())
        return path.data();
    @autoreleasepool {
        return toString(NSTemporaryDirectory());
    }
}

MacPath applicationSupportFolder(const MacPath& home) {
    @autoreleasepool {
        NSArray<NSString*>* const folders =
            NSSearchPathForDirectoriesInDomains(NSApplicationSupportDirectory, NSUserDomainMask, YES);
        return folders.count > 0 ? MacPath(toString(folders[0])) : home / "Library/Application Support";
    }
}

} // namespace

MacosVolume::MacosVolume(const PosixFileManager& files)
    : m_files(files),
      m_bundle(findProgramBundle()),
      m_home(homeFolder()),
      m_temporaryFolder(userTemporaryFolder()),
      m_applicationSupport(applicationSupportFolder(m_home)) {}

HostPath MacosVolume::hostPath(const MacPath& path) const {
    const auto host = m_files.hostPath(path, Links::follow);
    return host ? *host : HostPath();
}

} // namespace tavrik::macos
