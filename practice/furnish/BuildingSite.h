#pragma once

#include "platform/FileLock.h"
#include "platform/Path.h"
#include "platform/Result.h"

#include <optional>

namespace tavrik::practice {

/// The hidden folder beside a practice Mac in which a new one is built, held by one program at a time. What a
/// killed program left in it is cleared away when it is claimed. Destruction removes it, unless it was moved
/// into place.
class BuildingSite {
public:
    /// Waits while another program builds.
    static Result<BuildingSite> claim(const HostPath& root);
    /// Nothing when another program builds.
    static std::optional<BuildingSite> tryClaim(const HostPath& root);

    BuildingSite(BuildingSite&& other) noexcept;
    BuildingSite& operator=(BuildingSite&&) = delete;
    ~BuildingSite();

    const HostPath& folder() const { return m_folder; }

    /// Gives what was built its place. The place must be missing or an empty folder.
    Status moveTo(const HostPath& root);

    static HostPath folderFor(const HostPath& root);

private:
    BuildingSite(HostPath folder, FileLock lock);
    Status clear() const;

    HostPath m_folder;
    std::optional<FileLock> m_lock; ///< of the folder itself; gone when it was moved
};

} // namespace tavrik::practice
