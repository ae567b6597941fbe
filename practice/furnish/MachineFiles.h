#pragma once

#include "practice/furnish/TreeWriter.h"

namespace tavrik::practice {

/// Writes what a Mac has besides applications: the usual folders and links of the volume and of the home, the
/// system's version, the serial number, the Dock's bundle, and the state of the machine.
void writeMachineFiles(TreeWriter& tree);

} // namespace tavrik::practice
