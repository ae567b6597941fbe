#pragma once

#include <string_view>

namespace tavrik {

/// The one test of an untrusted name (an identifier, a title, a theme's id, a name in a recovery file) before
/// it becomes part of a path or an argument. Accepts valid UTF-8 of 1 to 255 bytes that is neither "." nor
/// "..", holds no "/", no NUL, no other control character and neither U+FFFE nor U+FFFF, which no XML
/// property list can hold, and does not begin with "-".
bool isSafePathComponent(std::string_view name);

} // namespace tavrik
