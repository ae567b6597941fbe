#pragma once

#include "platform/Bytes.h"
#include "platform/Date.h"
#include "platform/Path.h"
#include "platform/Result.h"

#include <sys/types.h>

#include <system_error>

/// Plain files of the host, for building a volume from outside. Failures carry errno and name the path. Nothing
/// is flushed: a furnished Mac can be furnished again.
namespace tavrik::practice {

Result<Bytes> readHostFile(const HostPath& file);

/// Makes a new file with these rights, whatever the process's mask; fails when anything is there.
Status createHostFile(const HostPath& file, ByteView content, mode_t mode);

/// Makes a folder and the missing ones above it.
Status createHostFolder(const HostPath& folder, mode_t mode = 0755);

/// Removes whatever is there, with everything in it; links are not followed. Fine when nothing is.
Status removeHostTree(const HostPath& path);

Status renameHost(const HostPath& from, const HostPath& to);

/// The error of a failed call on a path.
Error hostError(const char* action, const HostPath& path, std::error_code failure);

/// The moment of last change in whole and broken seconds; the path itself, should it be a link.
Status setHostDate(const HostPath& path, Date date);

} // namespace tavrik::practice
