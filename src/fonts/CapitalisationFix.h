#pragma once

#include <string>
#include <string_view>

namespace tavrik {

/// A guess at the capitals of a plain name whose own were taken by a style without small letters: the products
/// that everybody knows ("iPhone"), else every word with a capital first letter; a word of up to three letters
/// that is all capitals stays. Nothing but the case of letters changes, runs of spaces included. Pure; any
/// thread.
std::string withFixedCapitals(std::string_view plain);

} // namespace tavrik
