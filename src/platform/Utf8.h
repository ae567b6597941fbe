#pragma once

#include <optional>
#include <string_view>

namespace tavrik {

/// Takes the first code point off the text. Nothing, and the text as it was, when it begins with no valid
/// UTF-8: cut short, overlong, a surrogate or beyond U+10FFFF. The text must not be empty.
std::optional<char32_t> takeCodePoint(std::string_view& text);

bool isUtf8(std::string_view text);

} // namespace tavrik
