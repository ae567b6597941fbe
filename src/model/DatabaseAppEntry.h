#pragma once

#include "model/RowID.h"
#include "platform/Bytes.h"

#include <optional>

namespace tavrik {

/// One application row of the Launchpad database.
struct DatabaseAppEntry {
    RowID rowID{};
    std::optional<std::int32_t> flags; ///< nothing where the column is NULL
    RowID parentID{};                  ///< the page that holds the item
    std::int32_t ordering = 0;         ///< position within the parent
    Bytes bookmarkData;

    bool isHidden() const { return flags && (*flags & kHiddenFlag) != 0; }

    bool operator==(const DatabaseAppEntry&) const = default;
};

} // namespace tavrik
