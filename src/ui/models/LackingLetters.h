#pragma once

#include "fonts/FontReplacer.h"

#include <string>
#include <vector>

namespace tavrik {

/// Names that a styled alphabet cannot write in full.
struct LackingLetters {
    std::vector<std::string> names; ///< in the order given
    bool onlyDigits = true;         ///< nothing but digits is missing

    bool operator==(const LackingLetters&) const = default;
};

/// Of plain names, those with a letter or digit that stays as it is in the style. Pure; any thread.
LackingLetters lackingLetters(const std::vector<std::string>& names, const FontReplacer::FontMap& style);

} // namespace tavrik
