#pragma once

#include "platform/Sqlite.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tavrik {

/// New titles for rows of one table, read and written in one transaction that begins with it and, unless it is
/// committed, ends without a trace. The first failure, a locked database or a missing table is logged, and
/// nothing comes of the rest.
class TitleChanges {
public:
    /// `what` names the titles in the log.
    TitleChanges(sqlite::Connection& database, std::string what);

    /// Hands over every row of a query. False when the transaction did not begin or not all rows can be read.
    [[nodiscard]] bool read(std::string_view query, const std::function<void(const sqlite::Statement&)>& row);

    void add(std::int64_t row, std::string title) { m_changes.push_back({row, std::move(title)}); }

    /// Writes what was added. `update` takes the title as its first parameter and the row as its second.
    [[nodiscard]] bool write(const char* update);

    /// How many titles were changed, once they are committed.
    std::optional<std::size_t> commit();

private:
    std::optional<sqlite::Statement> prepare(std::string_view sql);
    bool fail();

    struct Change {
        std::int64_t row;
        std::string title;
    };

    sqlite::Connection& m_database;
    const std::string m_what;
    sqlite::Transaction m_transaction;
    std::vector<Change> m_changes;
};

} // namespace tavrik
