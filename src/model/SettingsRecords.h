#pragma once

#include "model/RowID.h"
#include "platform/Bytes.h"
#include "platform/Date.h"
#include "platform/PropertyList.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tavrik {

/// Which rows were exchanged for an application that has a wrapper.
struct TavrikMapping {
    RowID originalRowID{};
    RowID tavrikRowID{};
    Date createdDate;

    bool operator==(const TavrikMapping&) const = default;
};

/// The style that all titles carry now.
struct FontState {
    std::string fontName;
    bool isMultiCase = false;
    Date appliedDate;

    bool operator==(const FontState&) const = default;
};

/// The titles of one Launchpad folder that its plain name can be told from.
struct FolderBackup {
    std::optional<std::string> original; ///< before it was first restyled
    std::optional<Date> originalDate;
    std::optional<std::string> lastGood; ///< the last title known to be right
    std::optional<Date> lastGoodDate;
    std::optional<std::string> lastGoodFont;

    bool operator==(const FolderBackup&) const = default;
};

/// A platform application whose Launchpad row carries the hidden flag.
struct HiddenFlagApp {
    std::int64_t originalFlags = 0;
    RowID originalRowID{};
    std::optional<RowID> tavrikRowID; ///< once its wrapper is indexed
    bool wasHiddenFlag = false;
    Date lastSeenDate;

    bool operator==(const HiddenFlagApp&) const = default;
};

/// A Dock tile's bookmark as it was before the tile was first repointed.
struct DockBookmark {
    std::string bundleID;
    Bytes bookmark;
    bool isOriginal = true;
    std::optional<plist::Value> fileModDate{}; ///< the tile's date then, in whatever form it had

    bool operator==(const DockBookmark&) const = default;
};

/// Where a row stands in Launchpad.
struct ItemPlacement {
    std::optional<std::int32_t> flags;
    RowID parentID{};
    std::int32_t ordering = 0;

    bool operator==(const ItemPlacement&) const = default;
};

/// Where both rows stand while the original is in its own place, noted durably before they are exchanged in
/// either direction and kept until the whole creation or removal is done. An exchange is its own inverse, so a
/// repeat after a kill looks here first and at the rows second, and never exchanges twice.
struct SwapRecord {
    RowID originalRowID{};
    ItemPlacement original;
    RowID tavrikRowID{};
    ItemPlacement tavrik;

    bool operator==(const SwapRecord&) const = default;
};

} // namespace tavrik
