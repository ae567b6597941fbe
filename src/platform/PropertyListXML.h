#pragma once

#include "platform/PropertyList.h"

namespace tavrik::plist {

/// The list as XML, laid out as the Mac does. Depth is the caller's to check. Written here because libplist
/// rounds reals to seven digits after the point and loses carriage returns.
Result<Bytes> toXML(const Value& value);

} // namespace tavrik::plist
