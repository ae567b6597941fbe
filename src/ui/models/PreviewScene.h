#pragma once

#include "changes/StagedChanges.h"
#include "platform/Path.h"
#include "platform/Result.h"

#include <string>
#include <vector>

namespace tavrik {

struct ApplyServices;

/// Where an icon on the screen comes from.
struct PreviewIcon {
    enum class Kind {
        none,   ///< nothing is where it should be: a question mark
        shown,  ///< what the Mac shows for the path
        file,   ///< the picture in the file
        finder, ///< drawings of our own, where the Mac has no file to ask for
        trash,
        fullTrash,
    };

    Kind kind = Kind::none;
    MacPath path;

    bool operator==(const PreviewIcon&) const = default;
};

/// An item as it is now, or as it would be.
struct PreviewFace {
    std::string title;
    PreviewIcon icon; ///< of an application

    bool operator==(const PreviewFace&) const = default;
};

/// An application or a folder of Launchpad, or a tile of the Dock.
struct PreviewItem {
    enum class Kind { app, folder, gap, line };

    std::string key; ///< the same for the same item in the next reading
    Kind kind = Kind::app;
    PreviewFace now;
    PreviewFace after;
    std::vector<PreviewItem> members{}; ///< of a folder, its pages in one

    /// Of the item itself and of its members.
    int changeCount() const;
    /// Whether it, or one of its members, gets another icon.
    bool changesIcon() const;

    bool operator==(const PreviewItem&) const = default;
};

/// Launchpad and the Dock, now and with what is staged: everything stands where it stood.
struct PreviewScene {
    std::vector<std::vector<PreviewItem>> pages; ///< of Launchpad; what it does not show is left out
    std::vector<PreviewItem> tiles;              ///< of the Dock, with the gaps and lines between them

    bool operator==(const PreviewScene&) const = default;
};

/// The error, in a sentence, says which store cannot be read. Background thread; blocks on the disk; changes
/// nothing but what reading the catalogue records.
Result<PreviewScene> readPreview(const ApplyServices& with, const StagedChanges& staged);

} // namespace tavrik
