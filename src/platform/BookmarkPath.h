#pragma once

#include "platform/Bytes.h"
#include "platform/Path.h"
#include "platform/Result.h"

namespace tavrik {

/// The path that a bookmark records, from "/" (for a volume's root its mount path). An error for what is
/// damaged, names nothing, is longer than 16 KB, or holds a component that is "", ".", "..", no UTF-8, or has a
/// "/" or NUL in it. Whether anything is there is not looked at. The container of a Finder alias file is
/// accepted too. Pure; any thread.
Result<MacPath> pathInBookmark(ByteView bookmark);

} // namespace tavrik
