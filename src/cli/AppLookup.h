#pragma once

#include "model/ApplicationInfo.h"
#include "platform/Result.h"

#include <string>
#include <vector>

namespace tavrik {

/// The application with exactly this bundle identifier. The error is a sentence that names the nearest ones.
Result<ApplicationInfo> findApp(const std::vector<ApplicationInfo>& apps, const std::string& bundleID);

/// Why an application cannot be restyled, in a sentence; empty when it can.
std::string refusal(const ApplicationInfo& app, bool isListedUnsupported);

} // namespace tavrik
