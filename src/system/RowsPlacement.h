#pragma once

#include "model/SettingsRecords.h"

namespace tavrik {

/// Where the rows of an application and of its wrapper stand at one moment.
struct RowsPlacement {
    ItemPlacement original;
    ItemPlacement wrapper;
};

enum class RowsState {
    home,      ///< each in its own place
    exchanged, ///< each in the other's place
    elsewhere, ///< moved since, by a person or the system
};

/// What became of the rows of a recorded exchange. The system renumbers the items of a page at will, so rows
/// that belong to two pages are known by the page alone. Pure; any thread.
RowsState stateOf(const RowsPlacement& now, const SwapRecord& record);

} // namespace tavrik
