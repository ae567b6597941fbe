#include "platform/SqliteCopy.h"

#include <sqlite3.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>

namespace tavrik::sqlite {

namespace {

constexpr const char* kNoMemory = "There is no memory for a copy of the database";

/// By name alone: SQLite's locks on a file go when any descriptor of the process on it is closed.
bool isThere(const std::string& path) {
    struct stat status{};
    return ::stat(path.c_str(), &status) == 0;
}

/// Opens a database that is to be read once, so that nothing is left beside it that was not there.
Result<Connection> openForCopying(const HostPath& file) {
    auto connection = Connection::open(file, OpenMode::readWrite);
    if (!connection)
        return Error{"The database is missing or may not be read"};
    const std::string name = sqlite3_db_filename(connection->handle(), "main");
    if (!isThere(name + "-wal")) {
        // The last to close removes the log that opening makes, but only one who may write.
        if (sqlite3_db_readonly(connection->handle(), "main") != 0)
            return Error{"The database may not be written"};
        return std::move(*connection);
    }
    sqlite3_db_config(connection->handle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    // Nobody has the database open where a log has no index; alone, SQLite keeps the index in memory.
    if (!isThere(name + "-shm") && !connection->execute("PRAGMA locking_mode = EXCLUSIVE"))
        return Error{connection->lastError()};
    return std::move(*connection);
}

/// How large the database is; nothing when it cannot be read.
std::optional<std::size_t> sizeOf(Connection& database) {
    std::size_t size = 1;
    for (const char* factor : {"PRAGMA page_count", "PRAGMA page_size"}) {
        Statement asked = database.prepare(factor);
        if (!asked || asked.step() != Step::row)
            return std::nullopt;
        size *= static_cast<std::size_t>(asked.int64(0).value_or(0));
    }
    return size;
}

} // namespace

Result<Bytes> copyOf(const HostPath& database) {
    Result<Connection> source = openForCopying(database);
    if (!source)
        return source.error();
    // In a transaction, what is copied is as large as it was when it was asked for its size.
    const bool began = source->execute("BEGIN");
    const auto size = began ? sizeOf(*source) : std::nullopt;
    if (!size)
        return Error{source->lastError()};
    if (*size == 0)
        return Error{"The database is empty"};

    Bytes bytes(*size);
    const auto capacity = static_cast<sqlite3_int64>(*size);
    const auto copy = Connection::openInMemory();
    if (!copy || sqlite3_deserialize(copy->handle(), "main", bytes.data(), 0, capacity, 0) != SQLITE_OK)
        return Error{kNoMemory};
    sqlite3_backup* backup = sqlite3_backup_init(copy->handle(), "main", source->handle(), "main");
    const int stepped = backup ? sqlite3_backup_step(backup, -1) : sqlite3_errcode(copy->handle());
    const int finished = sqlite3_backup_finish(backup);
    if (stepped != SQLITE_DONE || finished != SQLITE_OK)
        return Error{sqlite3_errstr(stepped != SQLITE_DONE ? stepped : finished)};
    return bytes;
}

Result<Connection> openCopy(ByteView file) {
    constexpr std::size_t kSmallestPage = 512;
    if (file.size() < kSmallestPage)
        return Error{sqlite3_errstr(SQLITE_NOTADB)};
    auto connection = Connection::openInMemory();
    auto* memory = static_cast<std::uint8_t*>(sqlite3_malloc64(file.size()));
    if (!connection || !memory) {
        sqlite3_free(memory);
        return Error{kNoMemory};
    }
    std::ranges::copy(file, memory);

    // A database that is all in memory has no log; one that asks for it does not open.
    constexpr std::size_t kWriteVersion = 18;
    constexpr std::size_t kReadVersion = 19;
    constexpr std::uint8_t kRollbackJournal = 1;
    constexpr std::uint8_t kWriteAheadLog = 2;
    for (const std::size_t version : {kWriteVersion, kReadVersion})
        if (memory[version] == kWriteAheadLog)
            memory[version] = kRollbackJournal;

    const auto size = static_cast<sqlite3_int64>(file.size());
    constexpr unsigned kFlags = SQLITE_DESERIALIZE_FREEONCLOSE | SQLITE_DESERIALIZE_RESIZEABLE;
    if (sqlite3_deserialize(connection->handle(), "main", memory, size, size, kFlags) != SQLITE_OK)
        return Error{connection->lastError()};
    sqlite3_db_config(connection->handle(), SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    if (!connection->execute("PRAGMA cell_size_check = ON; SELECT count(*) FROM sqlite_master"))
        return Error{connection->lastError()};
    return std::move(*connection);
}

Status checkIntegrity(Connection& database) {
    Statement check = database.prepare("PRAGMA integrity_check(1)");
    if (!check || check.step() != Step::row)
        return Error{database.lastError()};
    const std::string finding = check.text(0).value_or("");
    return finding == "ok" ? Status(Done{}) : Status(Error{finding});
}

} // namespace tavrik::sqlite
