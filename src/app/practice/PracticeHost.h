#pragma once

#include "app/MacHost.h"
#include "platform/Path.h"
#include "platform/Result.h"

#include <memory>

namespace tavrik {

class Alerts;

/// The programs of the build that stand for programs of a Mac lie in this folder, beside the program that asks.
HostPath programsFolder();

/// Opens the practice Mac in this folder, furnishing it on first use. An error, in a sentence, when the folder
/// holds something else or cannot be made. `alerts` asks the person; it must outlive the host.
Result<std::unique_ptr<MacHost>> openPracticeMac(const HostPath& root, Alerts& alerts);

/// Puts the practice Mac of this folder away and furnishes a new one.
Status resetPracticeMac(const HostPath& root);

} // namespace tavrik
