#pragma once

#include "platform/PropertyList.h"

namespace tavrik::plist {

/// The list in the binary format. Depth is the caller's to check. Written here because libplist merges equal
/// data by chance of their addresses, so that equal lists would differ in bytes, and cannot make negative
/// integers, exact dates or integers above 2^63 - 1.
Result<Bytes> toBinary(const Value& value);

} // namespace tavrik::plist
