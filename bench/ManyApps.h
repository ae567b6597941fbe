#pragma once

#include "platform/Path.h"

#include <string>
#include <vector>

namespace tavrik::bench {

/// Furnishes a practice Mac whose Launchpad holds so many applications, each in a bundle of its own, since a
/// wrapper links to one; one in five has a tile in the Dock. `tool` is the program that stands for the system's
/// tools. Ends the process when it cannot.
void furnishWithApps(const HostPath& root, int apps, const HostPath& tool);

/// The bundle identifiers of those applications, in order.
std::vector<std::string> manyApps(int apps);

} // namespace tavrik::bench
