#pragma once

#include "fonts/CharacterTable.h"
#include "platform/Utf8.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace tavrik {

/// The first code point of a text. A byte that is no UTF-8 counts as one U+FFFD; length 0 is the end of the
/// text.
struct FirstCodePoint {
    explicit FirstCodePoint(std::string_view text) {
        if (text.empty())
            return;
        std::string_view rest = text;
        value = takeCodePoint(rest).value_or(U'\uFFFD');
        length = rest.size() == text.size() ? 1 : text.size() - rest.size();
    }

    char32_t value = 0;
    std::size_t length = 0; ///< in bytes
};

/// Whether Qt's text segmentation finds no boundary inside the text.
bool isOneCharacter(std::string_view text);

/// Rewrites the user-perceived characters of a text that are one code point, and copies the others. Two code
/// points of which the table says that they join nothing are two characters, whatever stands around them, so
/// that nearly every text is walked without asking Qt.
///
/// A Replacement has `growth`, the most bytes that it writes for each byte read; `ascii`, which writes one
/// ASCII character and may touch four bytes in doing so; and `rewrites` and `write` for the code points beyond.
/// The writing ones return the new end of the output.
template<typename Replacement>
class CharacterWalk {
public:
    CharacterWalk(const CharacterTable& table, const Replacement& replacement)
        : m_table(table),
          m_replacement(replacement) {}

    std::string operator()(std::string_view text) {
        std::string result(text.size() * Replacement::growth + slack, '\0');
        m_rest = text;
        m_out = result.data();
        while (!m_rest.empty()) {
            writeAscii();
            writeOthers();
        }
        result.resize(static_cast<std::size_t>(m_out - result.data()));
        return result;
    }

private:
    static constexpr std::size_t slack = 4;

    struct Point : FirstCodePoint {
        Point(std::string_view text, const CharacterTable& table) : FirstCodePoint(text), entry(table[value]) {}

        std::uint8_t entry; ///< quiet at the end of the text
    };

    /// Writes the ASCII characters that another one follows: two of them never join, CR LF aside, which nobody
    /// rewrites.
    void writeAscii() {
        const char* at = m_rest.data();
        const char* const end = at + m_rest.size();
        for (; end - at >= 8 && areAscii(at); at += 7)
            for (int i = 0; i < 7; ++i)
                m_out = m_replacement.ascii(at[i], m_out);
        for (; end - at >= 2 && ((at[0] | at[1]) & 0x80) == 0; ++at)
            m_out = m_replacement.ascii(*at, m_out);
        m_rest.remove_prefix(static_cast<std::size_t>(at - m_rest.data()));
    }

    static bool areAscii(const char* eight) {
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, eight, sizeof bytes);
        return (bytes & 0x8080808080808080u) == 0;
    }

    /// Writes character by character, up to the next two that are ASCII.
    void writeOthers() {
        bool joined = false;
        for (Point point = pointAt(0); point.length != 0;) {
            std::size_t length = point.length;
            std::uint8_t last = point.entry;
            Point next = pointAt(length);
            while (next.entry == CharacterTable::extends || next.entry == CharacterTable::zeroJoin) {
                length += next.length;
                last = next.entry;
                next = pointAt(length);
            }
            const bool joinsNext = last == CharacterTable::prepends ||
                                   (last == CharacterTable::zeroJoin && CharacterTable::isStyled(next.entry) &&
                                    isOneCharacter(m_rest.substr(0, length + next.length)));
            if (joined || length != point.length)
                copy(length);
            else
                write(point);
            if (!joinsNext && point.value < 0x80 && next.value < 0x80)
                return;
            joined = joinsNext;
            point = next;
        }
    }

    Point pointAt(std::size_t offset) const { return Point(m_rest.substr(offset), m_table); }

    void write(const Point& point) {
        if (point.value < 0x80) {
            m_out = m_replacement.ascii(static_cast<char>(point.value), m_out);
        } else if (m_replacement.rewrites(point.value, point.entry)) {
            m_out = m_replacement.write(point.value, point.entry, m_out);
        } else {
            copy(point.length);
            return;
        }
        m_rest.remove_prefix(point.length);
    }

    void copy(std::size_t length) {
        std::memcpy(m_out, m_rest.data(), length);
        m_out += length;
        m_rest.remove_prefix(length);
    }

    std::string_view m_rest;
    char* m_out = nullptr;
    const CharacterTable& m_table;
    const Replacement& m_replacement;
};

} // namespace tavrik
