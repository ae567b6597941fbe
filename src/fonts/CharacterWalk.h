#pragma once

#include "fonts/CharacterTable.h"
#include "platform/Utf8.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace tavrik {

/// Whether Qt's text segmentation finds no boundary inside the text.
bool isOneCharacter(std::string_view text);

/// Rewrites the user-perceived characters of a text that are one code point, and copies the others. Two code
/// points of which the table says that they join nothing are two characters, whatever stands around them, so
/// that nearly every text is walked without asking Qt. A byte that is no UTF-8 counts as one U+FFFD.
///
/// A Replacement has `growth`, the most bytes that it writes for each byte read; `ascii`, which writes one
/// ASCII character and may touch four bytes in doing so; and `rewrites` and `write` for the code points beyond.
/// The writing ones return the new end of the output.
template<typename Replacement>
class CharacterWalk {
public:
    CharacterWalk(std::string_view text, const CharacterTable& table, const Replacement& replacement)
        : m_text(text),
          m_end(text.data() + text.size()),
          m_table(table),
          m_replacement(replacement) {}

    std::string operator()() const {
        std::string result(m_text.size() * Replacement::growth + slack, '\0');
        Pen pen{m_text.data(), result.data()};
        while (pen.at != m_end)
            pen = writeOthers(writeAscii(pen));
        result.resize(static_cast<std::size_t>(pen.out - result.data()));
        return result;
    }

private:
    /// What is written at once, even where fewer bytes count.
    static constexpr std::ptrdiff_t slack = 4;

    /// Where reading and writing stand. Handed on by value, so that it stays in registers.
    struct Pen {
        const char* at;
        char* out;
    };

    struct Point {
        const char* end = nullptr; ///< null behind the last one
        char32_t value = 0;
        std::uint8_t entry = CharacterTable::quiet;
    };

    /// Writes the ASCII characters that another one follows: two of them never join, CR LF aside, which nobody
    /// rewrites.
    Pen writeAscii(Pen pen) const {
        for (; m_end - pen.at >= 8 && areAscii(pen.at); pen.at += 7)
            for (int i = 0; i < 7; ++i)
                pen.out = m_replacement.ascii(pen.at[i], pen.out);
        for (; m_end - pen.at >= 2 && ((pen.at[0] | pen.at[1]) & 0x80) == 0; ++pen.at)
            pen.out = m_replacement.ascii(*pen.at, pen.out);
        return pen;
    }

    static bool areAscii(const char* eight) {
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, eight, sizeof bytes);
        return (bytes & 0x8080808080808080u) == 0;
    }

    /// Writes character by character, up to the next two that are ASCII.
    Pen writeOthers(Pen pen) const {
        bool joined = false;
        for (Point point = pointAt(pen.at); point.end != nullptr;) {
            Point last = point;
            Point next = pointAt(last.end);
            while (next.entry == CharacterTable::extends || next.entry == CharacterTable::zeroJoin) {
                last = next;
                next = pointAt(last.end);
            }
            const bool joinsNext = join(pen.at, last, next);
            pen = joined || last.end != point.end ? copy(pen, last.end) : write(pen, point);
            if (!joinsNext && (point.value | next.value) < 0x80)
                break;
            joined = joinsNext;
            point = next;
        }
        return pen;
    }

    /// Whether a code point that does not extend joins the one before it, and so all from `start` on.
    static bool join(const char* start, const Point& last, const Point& next) {
        if (last.entry == CharacterTable::prepends)
            return true;
        return last.entry == CharacterTable::zeroJoin && CharacterTable::isStyled(next.entry) &&
               isOneCharacter({start, next.end});
    }

    /// Inlined like the decoder: the call would take longer than the work.
    [[gnu::always_inline]] Point pointAt(const char* at) const {
        if (at == m_end)
            return {};
        std::string_view rest(at, m_end);
        const auto taken = takeCodePoint(rest);
        const char32_t value = taken.value_or(U'\uFFFD');
        return {taken ? rest.data() : at + 1, value, m_table[value]};
    }

    Pen write(Pen pen, const Point& point) const {
        if (point.value < 0x80)
            return {point.end, m_replacement.ascii(static_cast<char>(point.value), pen.out)};
        if (m_replacement.rewrites(point.value, point.entry))
            return {point.end, m_replacement.write(point.value, point.entry, pen.out)};
        return copy(pen, point.end);
    }

    Pen copy(Pen pen, const char* end) const {
        const std::ptrdiff_t length = end - pen.at;
        if (length <= slack && m_end - pen.at >= slack)
            std::memcpy(pen.out, pen.at, slack);
        else
            std::memcpy(pen.out, pen.at, static_cast<std::size_t>(length));
        return {end, pen.out + length};
    }

    std::string_view m_text;
    const char* m_end;
    const CharacterTable& m_table;
    const Replacement& m_replacement;
};

} // namespace tavrik
