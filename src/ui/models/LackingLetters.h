#pragma once

#include "fonts/FontReplacer.h"

#include <string_view>

namespace tavrik {

/// Whether a plain name has a letter or digit that stays as it is in the style. Pure; any thread.
bool isLackingLetters(std::string_view name, const FontReplacer::FontMap& style);

} // namespace tavrik
