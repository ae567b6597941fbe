#pragma once

#include "platform/Volume.h"

namespace tavrik {
class PosixFileManager;
}

namespace tavrik::practice {

/// Where things are on a practice Mac: always at the same paths, whoever runs it. Any thread.
class PracticeVolume : public Volume {
public:
    explicit PracticeVolume(const PosixFileManager& files);

    MacPath home() const override;
    std::string temporaryFolder() const override;
    MacPath applicationSupport() const override;
    std::string bundleIdentifier() const override;
    MacPath resource(std::string_view name) const override;
    HostPath hostPath(const MacPath& path) const override;

private:
    const PosixFileManager& m_files;
};

} // namespace tavrik::practice
