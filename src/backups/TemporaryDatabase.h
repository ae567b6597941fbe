#pragma once

#include "platform/Bytes.h"
#include "platform/Path.h"
#include "platform/Result.h"
#include "platform/Sqlite.h"

#include <cstdint>
#include <optional>

namespace tavrik {

struct Mac;

/// The bytes of a database as a file, for SQLite to work on, and as bytes again. The file is readable by its
/// owner alone and goes with this object, together with what SQLite may put beside it; a kill leaves it.
/// Whatever stands at its path is removed first, a link itself and not what it leads to.
///
/// There is no journal, since a change that fails is thrown away with the file: after one nothing but the end
/// of this object makes sense. Background thread; blocks on the disk.
class TemporaryDatabase {
public:
    TemporaryDatabase(Mac& mac, const MacPath& file);
    ~TemporaryDatabase();
    TemporaryDatabase(const TemporaryDatabase&) = delete;
    TemporaryDatabase& operator=(const TemporaryDatabase&) = delete;

    /// Writes the file and opens it within one transaction, in which no trigger fires. `database` is itself
    /// again when this returns. The error's code is errno's or SQLite's.
    Status open(Bytes& database);

    /// Only once it is open.
    sqlite::Connection& connection() { return *m_connection; }

    /// Commits and closes, and reads the file back, in the journal mode that it came in.
    Result<Bytes> finish();

    /// Removes what a kill left at this path. An error when something stays.
    static Status remove(Mac& mac, const MacPath& file);

private:
    Status connect();
    Error sqliteError() const;

    Mac& m_mac;
    const MacPath m_file;
    bool m_isThere = false;
    bool m_wasInWalMode = false;
    std::optional<sqlite::Connection> m_connection;
};

} // namespace tavrik
