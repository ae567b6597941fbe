#pragma once

#include "practice/furnish/TreeWriter.h"

namespace tavrik::practice {

/// Writes the Dock's preferences of a new practice Mac. The bundles must stand already, for their bookmarks.
void writeSampleDock(TreeWriter& tree);

} // namespace tavrik::practice
