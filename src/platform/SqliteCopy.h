#pragma once

#include "platform/Bytes.h"
#include "platform/Path.h"
#include "platform/Result.h"
#include "platform/Sqlite.h"

/// Whole databases as bytes.
namespace tavrik::sqlite {

/// What a database holds now, as the bytes of one database file, taken through SQLite's backup interface: what
/// is still in the write-ahead log is in them, and what another program has not committed is not. The header
/// says the journal mode of the original. An error when the file is missing, empty, no database, held
/// exclusively by another program, or not to be written by the user. Writes nothing, never creates the file,
/// and leaves beside it what was there, the log of a killed program included; only the rollback journal of one
/// is played back, as by any who opens the database. Blocks on the disk.
Result<Bytes> copyOf(const HostPath& database);

/// A private copy of such bytes in memory, to look into; what is changed in it goes with it. An error when they
/// are no database. A file in write-ahead-log mode is accepted; the copy itself keeps no log. The bytes may be
/// of unknown origin: functions in the schema are not trusted.
Result<Connection> openCopy(ByteView file);

/// Done when SQLite finds every page and index in order; otherwise its first finding. Reads the whole database.
Status checkIntegrity(Connection& database);

} // namespace tavrik::sqlite
