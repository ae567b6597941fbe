#pragma once

#include "platform/Bytes.h"

namespace tavrik {

/// The program's icon file with all the elements that a Mac looks for, from 16 points to 512 points at twice
/// the pixels, each drawn at its own size. Empty when a picture could not be made.
Bytes appIcon();

} // namespace tavrik
