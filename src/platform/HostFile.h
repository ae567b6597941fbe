#pragma once

#include "platform/Bytes.h"
#include "platform/Path.h"
#include "platform/Result.h"

#include <cstddef>

namespace tavrik {

/// Files of the host that a person names or hands over. Block on the disk. Errors are sentences.

/// A plain file of at most so many bytes.
Result<Bytes> readHostFile(const HostPath& file, std::size_t most = 256u << 20);

/// Replaces the file's content, or leaves what was there when that fails.
Status writeHostFile(const HostPath& file, ByteView data);

} // namespace tavrik
