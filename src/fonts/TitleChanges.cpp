#include "fonts/TitleChanges.h"

#include "platform/Log.h"

#include <utility>

namespace tavrik {

// The write lock from the first: a transaction that began by reading could not write any more once another
// program has written.
TitleChanges::TitleChanges(sqlite::Connection& database, std::string what)
    : m_database(database),
      m_what(std::move(what)),
      m_transaction(database, "BEGIN IMMEDIATE TRANSACTION") {}

std::optional<sqlite::Statement> TitleChanges::prepare(std::string_view sql) {
    // Without an open transaction each update would be committed by itself.
    sqlite::Statement statement = m_transaction.isOpen() ? m_database.prepare(sql) : sqlite::Statement();
    if (statement)
        return statement;
    fail();
    return std::nullopt;
}

bool TitleChanges::read(std::string_view query, const std::function<void(const sqlite::Statement&)>& row) {
    auto rows = prepare(query);
    if (!rows)
        return false;
    sqlite::Step step = rows->step();
    for (; step == sqlite::Step::row; step = rows->step())
        row(*rows);
    return step == sqlite::Step::done || fail();
}

bool TitleChanges::write(const char* update) {
    auto statement = prepare(update);
    if (!statement)
        return false;
    for (const Change& change : m_changes) {
        statement->reset();
        statement->bind(1, std::string_view(change.title));
        statement->bind(2, change.row);
        if (statement->step() != sqlite::Step::done)
            return fail();
    }
    return true;
}

std::optional<std::size_t> TitleChanges::commit() {
    // Not by the transaction's own commit, whose rolling back makes SQLite forget what was wrong.
    if (m_database.execute("COMMIT"))
        return m_changes.size();
    fail();
    return std::nullopt;
}

bool TitleChanges::fail() {
    log("WARNING: The titles of " + m_what + " stay as they were: " + m_database.lastError());
    return false;
}

} // namespace tavrik
