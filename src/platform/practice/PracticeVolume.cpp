#include "platform/practice/PracticeVolume.h"

#include "platform/PosixFileManager.h"
#include "platform/practice/Layout.h"

namespace tavrik::practice {

PracticeVolume::PracticeVolume(const PosixFileManager& files) : m_files(files) {}

MacPath PracticeVolume::home() const {
    return kHome;
}

std::string PracticeVolume::temporaryFolder() const {
    return kTemporaryFolder;
}

MacPath PracticeVolume::applicationSupport() const {
    return kApplicationSupport;
}

std::string PracticeVolume::bundleIdentifier() const {
    return kBundleIdentifier;
}

MacPath PracticeVolume::resource(std::string_view name) const {
    return kProgramBundle / "Contents/Resources" / name;
}

HostPath PracticeVolume::hostPath(const MacPath& path) const {
    auto host = m_files.hostPath(path, Links::follow);
    return host ? *host : HostPath();
}

} // namespace tavrik::practice
