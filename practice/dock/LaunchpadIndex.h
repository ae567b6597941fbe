#pragma once

#include "platform/FileManager.h"
#include "platform/Sqlite.h"

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace tavrik::practice {

/// The Dock's work on the Launchpad database. Each operation is one transaction, begun only when there is
/// something to do; it leaves the rows as they were unless it is done. Blocks on the disk, never on a lock.
class LaunchpadIndex {
public:
    enum class Outcome {
        done,
        locked, ///< somebody else writes: try again later
        failed, ///< the database is damaged, or none
    };

    /// The connection must stay open for as long as this lives.
    LaunchpadIndex(sqlite::Connection& database, const FileManager& files);

    /// Removes the rows of these bundles that lead to nothing any more. Other rows that lead nowhere stay.
    Outcome removeMissing(const std::vector<MacPath>& bundles);

    /// Adds a row for each of these bundles that is there and has none by path.
    Outcome addNew(const std::vector<MacPath>& bundles);

private:
    template<typename Find, typename Change>
    Outcome changeEach(Find find, Change change);
    /// Where the rows lead, by the path that each bookmark records, and the rows that lead there.
    using RowsByPath = std::multimap<MacPath, std::int64_t>;

    std::optional<RowsByPath> rowsByPath();
    std::optional<std::vector<std::int64_t>> missingRows(const std::vector<MacPath>& bundles);
    std::optional<std::vector<MacPath>> newBundles(const std::vector<MacPath>& bundles);
    bool switchTriggersOn();
    bool remove(std::int64_t row);
    bool add(const MacPath& bundle);
    std::optional<std::int64_t> pageWithRoom();
    std::optional<std::int64_t> addItem(int type, int flags, std::int64_t parent, std::int64_t given);
    std::optional<std::int64_t> number(const char* sql, std::int64_t parameter);
    Outcome failure() const;

    sqlite::Connection& m_database;
    const FileManager& m_files;
};

} // namespace tavrik::practice
