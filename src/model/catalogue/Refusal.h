#pragma once

#include <string>

namespace tavrik {

struct ApplicationInfo;

/// Why an application cannot be restyled, in a sentence; empty when it can. `isListedUnsupported` says that it
/// is on the list of those that do not work through a wrapper. Pure.
std::string refusalOf(const ApplicationInfo& app, bool isListedUnsupported);

} // namespace tavrik
