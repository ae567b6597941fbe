#pragma once

#include "platform/Bytes.h"
#include "platform/Path.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

/// Handles over SQLite's C interface. Move-only; a handle belongs to one thread at a time.
namespace tavrik::sqlite {

enum class OpenMode {
    readWriteCreate, ///< the plain open call: a missing file is created empty
    readWrite,
    readOnly,
};

/// SQLite's codes for a statement about what is not there, a table for one, and for a file that cannot be
/// opened.
inline constexpr int kNoSuchThing = 1;
inline constexpr int kCannotOpen = 14;

enum class Step { row, done, failed };

class Statement;

/// One connection, without a busy timeout unless asked for: a locked database fails at once.
class Connection {
public:
    /// Nothing when it cannot be opened. The file itself is first read by the first statement.
    static std::optional<Connection> open(const HostPath& file, OpenMode mode);
    static std::optional<Connection> openInMemory();

    Connection(Connection&& other) noexcept;
    Connection& operator=(Connection&& other) noexcept;
    ~Connection();

    /// Runs one or several statements without results. False on the first failure.
    [[nodiscard]] bool execute(const char* sql);

    /// An empty statement when it cannot be prepared: test it before use.
    Statement prepare(std::string_view sql);

    /// Whether a transaction is open right now, asked of SQLite itself.
    bool inTransaction() const;

    void setBusyTimeout(int milliseconds);

    /// From now on what this connection changes fires none of the database's triggers, which stay in it.
    [[nodiscard]] bool disableTriggers();

    std::int64_t lastInsertedRow() const;

    /// SQLite's own words about the last failure.
    std::string lastError() const;
    /// SQLite's primary result code of the last failure (SQLITE_BUSY, ...).
    int lastErrorCode() const;

    sqlite3* handle() const { return m_handle; }

private:
    explicit Connection(sqlite3* handle) : m_handle(handle) {}

    sqlite3* m_handle = nullptr;
};

/// One prepared statement; must go before its connection. Parameters count from 1, columns from 0.
class Statement {
public:
    Statement() = default;
    Statement(Statement&& other) noexcept;
    Statement& operator=(Statement&& other) noexcept;
    ~Statement();

    explicit operator bool() const { return m_handle != nullptr; }

    void bind(int parameter, std::int64_t value);
    void bind(int parameter, double value);
    void bind(int parameter, std::string_view text); ///< copied
    void bind(int parameter, ByteView blob);         ///< copied
    void bindNull(int parameter);
    /// NULL when there is no value.
    void bind(int parameter, std::optional<std::int32_t> value);

    [[nodiscard]] Step step();
    void reset(); ///< ready to run again, bindings kept

    /// Nothing where the column is NULL.
    std::optional<std::int32_t> int32(int column) const;
    std::optional<std::int64_t> int64(int column) const;
    std::optional<double> real(int column) const;
    std::optional<std::string> text(int column) const;
    std::optional<Bytes> blob(int column) const;
    /// The same where it lies: gone with the next step.
    std::optional<ByteView> blobView(int column) const;

private:
    friend class Connection;

    explicit Statement(sqlite3_stmt* handle) : m_handle(handle) {}

    sqlite3_stmt* m_handle = nullptr;
};

/// Rolls back when it goes, unless committed. `isOpen` tells whether BEGIN took effect and SQLite, which ends a
/// transaction by itself on some failures, still has it open. One that could not begin, for instance inside
/// another, does nothing.
class Transaction {
public:
    /// `begin` is the whole statement: "BEGIN EXCLUSIVE TRANSACTION".
    Transaction(Connection& connection, const char* begin);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    bool isOpen() const;

    /// False when SQLite refused; what was changed is then rolled back.
    [[nodiscard]] bool commit();
    void rollBack();

private:
    Connection& m_connection;
    const bool m_began;
};

} // namespace tavrik::sqlite
