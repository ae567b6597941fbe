#pragma once

#include "platform/Path.h"

namespace tavrik {

class Program;

/// Fills the library with four themes of drawn icons, which takes a few seconds. Returns when they are there.
void addSampleThemes(Program& program);

/// Empties the library.
void removeThemes(Program& program);

/// Writes pictures into a folder of the host: some named after applications of the practice Mac, some nearly,
/// some not at all.
void writeSamplePictures(const HostPath& folder);

} // namespace tavrik
