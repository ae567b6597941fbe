#pragma once

#include "platform/Bytes.h"
#include "platform/Path.h"
#include "platform/Result.h"
#include "platform/Sqlite.h"

/// Whole databases as bytes.
namespace tavrik::sqlite {

/// What a database holds now, as the bytes of one database file, taken through SQLite's backup interface: what
/// is still in the write-ahead log is in them, and what another program has not committed is not. An error when
/// the file is missing, empty, no database, or held exclusively by another program. Writes nothing and never
/// creates the file. Blocks on the disk.
Result<Bytes> copyOf(const HostPath& database);

/// A private copy of such bytes in memory, to look into; what is changed in it goes with it. An error when they
/// are no database. A file in write-ahead-log mode is accepted.
Result<Connection> openCopy(Bytes file);

/// Done when SQLite finds every page and index in order; otherwise its first finding. Reads the whole database.
Status checkIntegrity(Connection& database);

} // namespace tavrik::sqlite
