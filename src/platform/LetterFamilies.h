#pragma once

#include <string_view>

namespace tavrik {

/// The freely licensed font family that has a styled letter's whole alphabet, so that the letters of a title do
/// not come from several families, which stand unevenly. Empty for any other character. Pure; any thread.
std::string_view familyOfStyledLetter(char32_t letter);

} // namespace tavrik
