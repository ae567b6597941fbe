#pragma once

#include "app/MacHost.h"
#include "platform/Result.h"

#include <memory>

namespace tavrik {

class Alerts;

/// Opens the Mac of this program: the real one, or the user's practice Mac. Which, is settled by the host's
/// library that the program links. An error is a sentence. `alerts` asks the person where the Mac has no way of
/// its own; it must outlive the host.
Result<std::unique_ptr<MacHost>> openHost(Alerts& alerts);

/// Tells Qt where the plugins of the program's own bundle lie, which Qt by itself does not find when the
/// program was called by a link. Called before the application object is made; nothing where there is no
/// bundle.
void findPlugins();

} // namespace tavrik
