#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace tavrik {

/// What each code point means to a walk that replaces letters and digits: which plain character it is a styled
/// form of, or how it joins its neighbours to one user-perceived character. That two regional indicators make
/// one flag, or three jamo one syllable, is of no matter here: no letter is ever part of it.
class CharacterTable {
public:
    /// The entries. Anything above is quiet too: a styled character, whose entry is the ASCII code of its plain
    /// one.
    enum : std::uint8_t {
        quiet,    ///< joins no letter or digit
        extends,  ///< joins what stands before it
        zeroJoin, ///< the zero width joiner: joins what stands before it and, between two pictographs, what
                  ///< follows
        prepends, ///< joins what stands behind it
    };

    /// By the character data of the Qt that the program runs with.
    CharacterTable();

    void setPlain(char32_t styled, char plain) { cell(styled) = static_cast<std::uint8_t>(plain); }

    std::uint8_t operator[](char32_t point) const { return m_pages[m_pageOf[point >> 8]][point & 0xFF]; }

    static bool isStyled(std::uint8_t entry) { return entry > prepends; }

private:
    using Page = std::array<std::uint8_t, 256>;

    std::uint8_t& cell(char32_t point);

    std::vector<Page> m_pages; ///< the first is all quiet and shared
    std::array<std::uint8_t, 0x1100> m_pageOf{};
};

} // namespace tavrik
