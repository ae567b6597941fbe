#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tavrik {

/// Takes the first code point off the text. Nothing, and the text as it was, when it begins with no valid
/// UTF-8: cut short, overlong, a surrogate or beyond U+10FFFF. The text must not be empty.
inline std::optional<char32_t> takeCodePoint(std::string_view& text) {
    const auto first = static_cast<std::uint8_t>(text.front());
    if (first < 0x80) {
        text.remove_prefix(1);
        return first;
    }
    // The number of leading ones is the length of the sequence.
    const auto length = static_cast<std::size_t>(std::countl_one(first));
    if (length < 2 || length > 4 || text.size() < length)
        return std::nullopt;
    char32_t point = first & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<std::uint8_t>(text[i]);
        if ((next & 0xC0) != 0x80)
            return std::nullopt;
        point = point << 6 | (next & 0x3Fu);
    }
    constexpr char32_t smallest[] = {0x80, 0x800, 0x10000};
    if (point < smallest[length - 2] || point > 0x10FFFF || (point >= 0xD800 && point <= 0xDFFF))
        return std::nullopt;
    text.remove_prefix(length);
    return point;
}

bool isUtf8(std::string_view text);

} // namespace tavrik
