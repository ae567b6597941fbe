#pragma once

#include "platform/Bytes.h"
#include "platform/Path.h"
#include "platform/Result.h"

namespace tavrik {

/// Files that a person names on the command line. Errors are sentences.

/// A plain file of at most 256 MiB.
Result<Bytes> readHostFile(const HostPath& file);

/// Replaces the file's content, or leaves what was there when that fails.
Status writeHostFile(const HostPath& file, ByteView data);

} // namespace tavrik
