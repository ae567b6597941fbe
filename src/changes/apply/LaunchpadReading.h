#pragma once

#include "platform/Result.h"

namespace tavrik {

struct ApplyServices;
struct ApplyStores;

/// Fills in what Launchpad shows: `apps`, `folders` and `strayWrapperRows`. The error is a sentence. Background
/// thread; reads in one transaction; fails at once when another program holds the database exclusively.
Status readLaunchpad(const ApplyServices& with, ApplyStores& stores);

} // namespace tavrik
