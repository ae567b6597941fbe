#pragma once

#include "platform/PropertyList.h"

#include <string>

namespace tavrik::practice {

/// A value as `defaults read` prints it, without a line break at the end: the bare text of a string, "1" and
/// "0" for truth values, containers in the old ASCII style with four blanks a level.
std::string defaultsText(const plist::Value& value);

} // namespace tavrik::practice
