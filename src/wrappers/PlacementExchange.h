#pragma once

#include "model/RowID.h"
#include "model/SettingsRecords.h"
#include "system/RowsPlacement.h"

#include <optional>
#include <string>

namespace tavrik {

class DatabaseManager;
class SettingsManager;

/// Exchanges an application's row with its wrapper's, in such a way that a kill at any moment can be repaired.
///
/// An exchange is its own inverse: done a second time it puts the rows back. So where both rows stand while the
/// original is in its own place is recorded on disk before the first change, and a repeat looks at the rows
/// before it touches them. The record stays until `finish`, and as long as it is there the application's
/// creation or removal is unfinished. Background thread only.
class PlacementExchange {
public:
    PlacementExchange(SettingsManager& settings, DatabaseManager& database);

    /// Puts the wrapper in the original's place and the original in the wrapper's. Does nothing when a recorded
    /// exchange of these rows was carried out already. False, with a log line and nothing changed, when it
    /// cannot be recorded or carried out, or when the recorded rows are at neither of their two places.
    [[nodiscard]] bool swapIn(const std::string& bundleID, RowID original, RowID wrapper);

    /// The reverse, by the same rules.
    [[nodiscard]] bool swapBack(const std::string& bundleID, RowID original, RowID wrapper);

    /// The reverse, unless one of the rows is gone: then there is nothing left to exchange, and that is fine.
    [[nodiscard]] bool swapBackIfThere(const std::string& bundleID, RowID original, RowID wrapper);

    bool isUnfinished(const std::string& bundleID) const;

    /// Puts the rows of an unfinished exchange back in case they still stand in each other's place; the record
    /// stays. Safe to repeat. False when the database cannot be read or refuses.
    [[nodiscard]] bool undoUnfinished(const std::string& bundleID);

    void finish(const std::string& bundleID);

private:
    enum class State {
        home,       ///< each in its own place
        exchanged,  ///< each in the other's place
        elsewhere,  ///< moved since, by a person or the system
        gone,       ///< one of them is no row of the application any more
        unreadable, ///< the database does not say
    };

    bool canTell() const;
    std::optional<RowsPlacement> placesOf(const std::string& bundleID, RowID original, RowID wrapper) const;
    State stateOf(const std::string& bundleID, const SwapRecord& record) const;
    bool bring(const std::string& bundleID, RowID original, RowID wrapper, State target);

    SettingsManager& m_settings;
    DatabaseManager& m_database;
};

} // namespace tavrik
