#pragma once

#include "platform/Path.h"

namespace tavrik {

struct Mac;

/// Makes the folder of the wrappers when it is missing, and hides it from the Finder anew, since other tools
/// may have shown it. Every failure is a log line and nothing more. Background thread; waits for child
/// processes.
void setUpWrapperFolder(Mac& mac, const MacPath& folder);

} // namespace tavrik
