#pragma once

#include "changes/StagedChanges.h"
#include "changes/apply/StoreChange.h"
#include "platform/Result.h"
#include "ui/models/PreviewScene.h"

#include <map>
#include <string>
#include <tuple>

namespace tavrik {

struct ApplyPlan;
struct ApplyServices;
struct ApplySnapshot;

/// What an apply would make of what is on the screen.
class PreviewChanges {
public:
    /// Nothing is otherwise.
    PreviewChanges() = default;

    /// An error, in a sentence, when a store cannot be read. Background thread; blocks on the disk.
    static Result<PreviewChanges> read(const ApplyServices& with, const StagedChanges& staged);

    /// An application in Launchpad.
    PreviewFace appAfter(const std::string& bundleID, const PreviewFace& now) const;
    /// A tile of the Dock.
    PreviewFace tileAfter(const std::string& bundleID, const PreviewFace& now) const;
    std::string folderTitleAfter(const std::string& row, const std::string& now) const;

private:
    PreviewChanges(const ApplyServices& with, const ApplySnapshot& snapshot, const ApplyPlan& plan);

    std::string after(StoreChange::Kind kind, const std::string& subject, const std::string& now) const;
    PreviewIcon iconAfter(StoreChange::Kind kind, const std::string& bundleID, const PreviewIcon& now) const;

    std::map<std::tuple<StoreChange::Kind, std::string, std::string>, std::string> m_changes; ///< to what
    std::map<std::string, MacPath> m_icons; ///< that wrappers get anew, by bundle identifier
};

} // namespace tavrik
