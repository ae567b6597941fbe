#pragma once

#include "platform/PropertyList.h"

#include <cstddef>

namespace tavrik::plist {

/// The list in the binary format, in memory that has `room` for so many bytes more. Depth is the caller's to
/// check. Written here because libplist merges equal
/// data by chance of their addresses, so that equal lists would differ in bytes, and cannot make negative
/// integers, exact dates or integers above 2^63 - 1.
Result<Bytes> toBinary(const Value& value, std::size_t room = 0);

} // namespace tavrik::plist
