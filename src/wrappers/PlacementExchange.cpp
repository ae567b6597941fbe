#include "wrappers/PlacementExchange.h"

#include "model/SettingsManager.h"
#include "platform/Log.h"
#include "system/DatabaseManager.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace tavrik {

namespace {

/// Where one of an application's own rows stands. A rebuilt database may have given its number to another item.
std::optional<ItemPlacement> placementIn(const std::vector<DatabaseAppEntry>& entries, RowID rowID) {
    const auto entry = std::find_if(entries.begin(), entries.end(),
                                    [rowID](const DatabaseAppEntry& each) { return each.rowID == rowID; });
    if (entry == entries.end())
        return std::nullopt;
    return ItemPlacement{entry->flags, entry->parentID, entry->ordering};
}

} // namespace

PlacementExchange::PlacementExchange(SettingsManager& settings, DatabaseManager& database)
    : m_settings(settings),
      m_database(database) {}

bool PlacementExchange::swapIn(const std::string& bundleID, RowID original, RowID wrapper) {
    return bring(bundleID, original, wrapper, State::exchanged);
}

bool PlacementExchange::swapBack(const std::string& bundleID, RowID original, RowID wrapper) {
    return bring(bundleID, original, wrapper, State::home);
}

bool PlacementExchange::swapBackIfThere(const std::string& bundleID, RowID original, RowID wrapper) {
    if (!placesOf(bundleID, original, wrapper))
        return canTell();
    return swapBack(bundleID, original, wrapper);
}

bool PlacementExchange::isUnfinished(const std::string& bundleID) const {
    return m_settings.getSwapRecord(bundleID).has_value();
}

bool PlacementExchange::undoUnfinished(const std::string& bundleID) {
    const std::optional<SwapRecord> record = m_settings.getSwapRecord(bundleID);
    if (!record)
        return true;
    switch (stateOf(bundleID, *record)) {
    case State::home:
    case State::gone:
        return true;
    case State::exchanged:
        return m_database.swapItemPlacement(record->tavrikRowID, record->originalRowID);
    case State::elsewhere:
        log("WARNING: The Launchpad rows of " + bundleID + " were moved since an unfinished swap");
        return true;
    case State::unreadable:
        log("ERROR: The Launchpad rows of the unfinished swap of " + bundleID + " cannot be read");
        return false;
    }
    return false;
}

void PlacementExchange::finish(const std::string& bundleID) {
    // Twice, since a record that stays by a passing fault would have all of the work done anew.
    for (int tries = 0; tries < 2 && isUnfinished(bundleID); ++tries)
        m_settings.removeSwapRecord(bundleID);
}

/// Whether rows that were not found are really not there.
bool PlacementExchange::canTell() const {
    const auto missing = m_database.missingColumns();
    return missing && missing->empty();
}

std::optional<RowsPlacement> PlacementExchange::placesOf(const std::string& bundleID, RowID original,
                                                         RowID wrapper) const {
    const auto entries = m_database.appEntries(bundleID);
    const auto originalNow = placementIn(entries, original);
    const auto wrapperNow = placementIn(entries, wrapper);
    if (!originalNow || !wrapperNow)
        return std::nullopt;
    return RowsPlacement{*originalNow, *wrapperNow};
}

PlacementExchange::State PlacementExchange::stateOf(const std::string& bundleID,
                                                    const SwapRecord& record) const {
    const auto now = placesOf(bundleID, record.originalRowID, record.tavrikRowID);
    if (!now)
        return canTell() ? State::gone : State::unreadable;
    switch (tavrik::stateOf(*now, record)) {
    case RowsState::home:
        return State::home;
    case RowsState::exchanged:
        return State::exchanged;
    case RowsState::elsewhere:
        return State::elsewhere;
    }
    return State::elsewhere;
}

bool PlacementExchange::bring(const std::string& bundleID, RowID original, RowID wrapper, State target) {
    const std::optional<SwapRecord> record = m_settings.getSwapRecord(bundleID);
    if (record && record->originalRowID == original && record->tavrikRowID == wrapper) {
        const State state = stateOf(bundleID, *record);
        if (state == target)
            return true;
        if (state != State::home && state != State::exchanged) {
            log("ERROR: The Launchpad rows of " + bundleID + " are not where an unfinished swap left them");
            return false;
        }
    } else {
        auto home = placesOf(bundleID, original, wrapper);
        if (!home) {
            log("ERROR: Failed to read the Launchpad rows of " + bundleID);
            return false;
        }
        if (target == State::home)
            std::swap(home->original, home->wrapper);
        if (!m_settings.saveSwapRecord(bundleID, {original, home->original, wrapper, home->wrapper})) {
            log("ERROR: Failed to record the Launchpad rows of " + bundleID);
            return false;
        }
    }
    return target == State::exchanged ? m_database.swapItemPlacement(original, wrapper)
                                      : m_database.swapItemPlacement(wrapper, original);
}

} // namespace tavrik
