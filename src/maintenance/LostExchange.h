#pragma once

#include <string>

namespace tavrik {

struct HealthLook;

/// Notes again in the settings that an application's wrapper holds its place in Launchpad, where the settings
/// have lost that, so that the removal of the wrapper puts the original back into its own. The backups tell,
/// which have each application in its own place: in one of them the original stands on the page that the
/// wrapper stands on now, and in the oldest not where the original stands now. A newer one may have been taken
/// when this was lost already. Does nothing when they say otherwise.
/// Background thread; reads every backup.
void noteLostExchange(const HealthLook& look, const std::string& bundleID);

} // namespace tavrik
