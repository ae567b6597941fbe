#pragma once

#include "model/ApplicationInfo.h"
#include "platform/Result.h"

#include <string>
#include <vector>

namespace tavrik {

/// What to say when the catalogue is empty, which it is only when something is wrong.
inline constexpr const char* kNoCatalogue =
    "The Launchpad database lists no application, or could not be read: another program may have it locked, or "
    "the "
    "disk be full. Close other programs that use it, see that there is space, and try again.";

/// The application with exactly this bundle identifier. The error is a sentence that names the nearest ones.
Result<ApplicationInfo> findApp(const std::vector<ApplicationInfo>& apps, const std::string& bundleID);

} // namespace tavrik
