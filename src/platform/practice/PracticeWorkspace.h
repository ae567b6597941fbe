#pragma once

#include "platform/Workspace.h"

#include <mutex>

namespace tavrik {
class Clock;
class FileManager;
} // namespace tavrik

namespace tavrik::practice {

/// Icons are stored as a Mac stores them on a foreign volume, and setting one moves the folder's date on as it
/// does there. Running applications are a list in the volume's state, which ending one shortens.
class PracticeWorkspace : public Workspace {
public:
    PracticeWorkspace(FileManager& files, const Clock& clock);

    QImage icon(const MacPath& path) const override;
    [[nodiscard]] bool setIcon(const MacPath& path, const QImage& icon) override;
    bool clearIcon(const MacPath& path) override;
    std::vector<RunningApplication> runningApplications() const override;

    /// Nothing here has documents to save, so it quits at once.
    bool askToQuit(const std::string& bundleID) override { return forceTerminate(bundleID); }

    [[nodiscard]] bool forceTerminate(const std::string& bundleID) override;

private:
    void stampFolder(const MacPath& path);

    FileManager& m_files;
    const Clock& m_clock;
    std::mutex m_changes; ///< one change at a time
};

} // namespace tavrik::practice
