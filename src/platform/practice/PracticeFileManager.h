#pragma once

#include "platform/PosixFileManager.h"

namespace tavrik::practice {

/// Files of a practice Mac. Companions ("._name") are kept in step as the Mac's own kernel does on a foreign
/// volume: a listing leaves out those whose partner exists, and removing, moving, replacing or copying a file
/// takes its companion along. A companion that nothing is left of at the new place is overwritten there. When
/// only the companion's part of a replacement fails, the replacement counts as done; a kill between the two
/// parts of a move or a replacement leaves the file without its Finder info and custom icon.
class PracticeFileManager : public PosixFileManager {
public:
    explicit PracticeFileManager(const HostPath& root);

    Result<std::vector<std::string>> list(const MacPath& folder) const override;
    Status copy(const MacPath& from, const MacPath& to) override;
    Status move(const MacPath& from, const MacPath& to) override;
    Status replace(const MacPath& original, const MacPath& replacement) override;
    Status remove(const MacPath& path) override;

protected:
    /// EPERM at and below the paths that the practice Mac's state names.
    std::error_code refusalAt(const MacPath& path) const override;

private:
    Status dropCompanion(const MacPath& path);
    Status takeCompanion(const MacPath& from, const MacPath& to);
    Status undoCopy(const MacPath& copy, const Status& reason);

    HostPath m_refusedPaths; ///< the list on the host
};

} // namespace tavrik::practice
