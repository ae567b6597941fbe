#pragma once

#include "platform/Workspace.h"

#include <mutex>

namespace tavrik::macos {

/// Icons and running applications as the Mac's workspace has them. Of a custom icon the mark that the Finder
/// goes by is looked at afterwards, since the workspace says that it stored some that it did not.
class MacosWorkspace : public Workspace {
public:
    QImage icon(const MacPath& path) const override;
    [[nodiscard]] bool setIcon(const MacPath& path, const QImage& icon) override;
    bool clearIcon(const MacPath& path) override;
    std::vector<RunningApplication> runningApplications() const override;
    [[nodiscard]] bool askToQuit(const std::string& bundleID) override;
    [[nodiscard]] bool forceTerminate(const std::string& bundleID) override;

private:
    std::mutex m_changes; ///< the workspace sets one icon at a time
};

} // namespace tavrik::macos
