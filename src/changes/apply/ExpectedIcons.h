#pragma once

#include "changes/apply/ApplyStores.h"

namespace tavrik {

struct ApplyTask;

/// Brings an application's icons to where an apply leaves them: the marked ones gone, the staged ones behind
/// the others, all numbered from 0, and the chosen one recorded. Returns whether one is chosen. Pure.
bool placeIcons(const ApplyTask& task, ApplyStores::AppState& state);

} // namespace tavrik
