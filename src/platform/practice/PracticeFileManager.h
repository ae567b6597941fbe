#pragma once

#include "platform/PosixFileManager.h"

namespace tavrik::practice {

/// Files of a practice Mac. Companions ("._name") are kept in step as the Mac's own kernel does on a foreign
/// volume: a listing leaves out those whose partner exists, and removing, moving, replacing or copying a file
/// takes its companion along.
class PracticeFileManager : public PosixFileManager {
public:
    explicit PracticeFileManager(HostPath root);

    Result<std::vector<std::string>> list(const MacPath& folder) const override;
    Status copy(const MacPath& from, const MacPath& to) override;
    Status move(const MacPath& from, const MacPath& to) override;
    Status replace(const MacPath& original, const MacPath& replacement) override;
    Status remove(const MacPath& path) override;
};

} // namespace tavrik::practice
