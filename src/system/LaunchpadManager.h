#pragma once

namespace tavrik {

class DockManager;
struct Mac;

/// Restarts the Dock, the only way to make Launchpad and the Dock show a changed database and changed
/// preferences.
class LaunchpadManager {
public:
    LaunchpadManager(Mac& mac, DockManager& dock);

    /// Returns when the Dock was killed; the system starts it again by itself, and nothing waits for that.
    /// Background thread only: waits 0.4 s.
    void restartDock();

private:
    Mac& m_mac;
    DockManager& m_dock;
};

} // namespace tavrik
