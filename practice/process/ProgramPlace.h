#pragma once

#include "platform/Path.h"

#include <optional>
#include <string_view>

namespace tavrik::practice {

/// The volume whose program this is, from the path that it was started by: that ends in the program's path on
/// the Mac, and what stands before is the volume's folder. Nothing when it does not end so, or when that is the
/// host's own root.
std::optional<HostPath> volumeOfProgram(std::string_view startedBy, const MacPath& program);

} // namespace tavrik::practice
