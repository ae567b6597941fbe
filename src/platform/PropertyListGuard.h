#pragma once

#include "platform/PropertyList.h"

/// What is looked at before a file of unknown origin is handed to libplist, which recurses without a limit,
/// unfolds shared objects without counting, and drops some content that it cannot hold. Each function answers
/// with the reason why the file is refused. A file that passes is not yet a valid list; it can only be parsed
/// safely.
namespace tavrik::plist {

/// Walks every object as often as it is referred to, and counts.
Status checkBinary(ByteView data, const Limits& limits);

/// Follows the opening and closing tags of containers. Stricter about markup than XML where libplist is laxer,
/// so that both always agree on where a tag ends.
Status checkXML(std::string_view text, const Limits& limits);

} // namespace tavrik::plist
