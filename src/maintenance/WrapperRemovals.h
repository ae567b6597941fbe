#pragma once

#include "model/ApplicationInfo.h"
#include "platform/Path.h"

#include <set>
#include <string>
#include <vector>

namespace tavrik {

struct ApplyServices;

/// Gives all applications their own look back: their tiles, their places, and the wrappers away. Goes on with
/// the next after each failure, which is logged, and forgets nothing that a repeat would need. The caller
/// restarts the Dock. Background thread; seconds.
class WrapperRemovals {
public:
    /// A sentence for each kind of thing that was done is added to `done`.
    WrapperRemovals(const ApplyServices& with, std::vector<std::string>& done) : m_with(with), m_done(done) {}

    void run();

private:
    void pointTilesBack();
    void remove(const ApplicationInfo& app);
    void removeUnlisted();
    void removeStrayBundles();
    std::set<std::string> swappedApps() const;
    bool isDatabaseFree();

    const ApplyServices& m_with;
    std::vector<std::string>& m_done;
    std::vector<std::string> m_names; ///< of applications that have their own look back
};

} // namespace tavrik
