#pragma once

#include "platform/Volume.h"
#include "platform/macos/ProgramBundle.h"

namespace tavrik {
class PosixFileManager;
}

namespace tavrik::macos {

/// Where things are for the user who runs the program. Asked of the system once, when it is made.
class MacosVolume : public Volume {
public:
    explicit MacosVolume(const PosixFileManager& files);

    MacPath home() const override { return m_home; }

    /// The user's own below /var/folders, whatever the process's environment says.
    std::string temporaryFolder() const override { return m_temporaryFolder; }

    MacPath applicationSupport() const override { return m_applicationSupport; }

    std::string bundleIdentifier() const override { return m_bundle.identifier; }

    MacPath resource(std::string_view name) const override { return m_bundle.resources / name; }

    HostPath hostPath(const MacPath& path) const override;

private:
    const PosixFileManager& m_files;
    const ProgramBundle m_bundle;
    const MacPath m_home;
    const std::string m_temporaryFolder;
    const MacPath m_applicationSupport;
};

} // namespace tavrik::macos
