#pragma once

#include "system/AccessCheck.h"

namespace tavrik {

class Notices;

/// Opens the system's settings at a pane of its privacy page; tells where there are none. Main thread.
void openPrivacySettings(PrivacyPane pane, Notices& notices);

} // namespace tavrik
