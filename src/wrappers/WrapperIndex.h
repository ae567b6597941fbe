#pragma once

#include "model/DatabaseAppEntry.h"
#include "platform/Path.h"

#include <optional>
#include <string>
#include <vector>

namespace tavrik {

class DatabaseManager;
class SettingsManager;
struct Mac;

/// The Launchpad rows of one bundle identifier, told apart. An application and its wrapper have the same
/// identifier; where a row's bookmark leads is what tells them from each other.
struct WrapperRows {
    struct Row {
        DatabaseAppEntry entry;
        MacPath path; ///< where it leads
    };

    std::vector<Row> originals; ///< leading outside the wrapper folder, in row order; more than one for copies
    std::vector<Row> wrappers;  ///< leading into it

    /// The original at this path, else the first; null without one.
    const Row* original(const MacPath& preferred) const;
    const Row* original(RowID rowID) const;

    const Row* wrapper(RowID rowID) const;
    const Row* visibleWrapper() const;
    /// One that Launchpad shows, else one that it hides, else null.
    const Row* anyWrapper() const;
};

/// Looks the rows up and waits for the wrapper's to appear. Background thread only.
class WrapperIndex {
public:
    WrapperIndex(Mac& mac, SettingsManager& settings, DatabaseManager& database);

    /// A row whose bookmark does not resolve is left out.
    WrapperRows rows(const std::string& bundleID) const;

    /// Polls once a second, as long as there are attempts left, for a row that leads to an existing wrapper.
    std::optional<RowID> waitUntilIndexed(const std::string& bundleID, int maxAttempts) const;

private:
    Mac& m_mac;
    SettingsManager& m_settings;
    DatabaseManager& m_database;
};

} // namespace tavrik
