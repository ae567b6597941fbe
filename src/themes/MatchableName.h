#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tavrik {

class FontReplacer;

/// A name made ready to be compared with many others: in small letters, without accents and styles, its words
/// run together. "Ember-Notes 2024 (beta)" has the letters "embernotes2024beta" and the core "embernotes".
struct MatchableName {
    std::u32string letters;
    std::u32string core; ///< without the words at the end that tell a version; never empty if `letters` is not
    std::vector<bool> starts;   ///< beside `letters`: whether a word begins there
    std::uint64_t alphabet = 0; ///< a bit for each letter's code point modulo 64
};

/// Words end at whatever is neither letter nor digit, and at the capitals within "TextEdit"; "&" and "+" are
/// the words "and" and "plus".
MatchableName matchable(std::string_view name, const FontReplacer& fonts);

/// How well the letters of the shorter name occur, in order, in the longer one: 0 when they do not, 1 when they
/// are all of it. Letters at the start of a word, and those that follow on one, weigh most; and so does how
/// much of the longer name is found. The same whichever name comes first.
double similarity(const MatchableName& one, const MatchableName& other);

} // namespace tavrik
