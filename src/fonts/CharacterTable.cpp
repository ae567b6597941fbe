#include "fonts/CharacterTable.h"

#include <QChar>

namespace tavrik {

namespace {

struct Range {
    char32_t first;
    char32_t last;
};

// Where marks can be: not among the ideographs, Hangul syllables and private characters.
constexpr Range searched[] = {{0x0300, 0x33FF}, {0xA000, 0xABFF}, {0xF900, 0x1FFFF}, {0xE0000, 0xE01FF}};

constexpr Range extendingWithoutBeingMarks[] = {
    {0x0E33, 0x0E33},   // Thai sara am
    {0x0EB3, 0x0EB3},   // the same in Lao
    {0x200C, 0x200C},   // zero width non-joiner
    {0xFF9E, 0xFF9F},   // halfwidth voicing of kana
    {0x1F3FB, 0x1F3FF}, // skin tones
    {0xE0020, 0xE007F}, // tags
};

constexpr Range marksWithoutExtending[] = {
    {0x102B, 0x102C}, {0x1038, 0x1038}, {0x1062, 0x1064},   {0x1067, 0x106D}, {0x1083, 0x1083},
    {0x1087, 0x108C}, {0x108F, 0x108F}, {0x109A, 0x109C},   {0x1A61, 0x1A61}, {0x1A63, 0x1A64},
    {0xAA7B, 0xAA7B}, {0xAA7D, 0xAA7D}, {0x11720, 0x11721},
};

constexpr Range prepending[] = {
    {0x0600, 0x0605},   {0x06DD, 0x06DD},   {0x070F, 0x070F},   {0x0890, 0x0891},   {0x08E2, 0x08E2},
    {0x0D4E, 0x0D4E},   {0x110BD, 0x110BD}, {0x110CD, 0x110CD}, {0x111C2, 0x111C3}, {0x1193F, 0x1193F},
    {0x11941, 0x11941}, {0x11A3A, 0x11A3A}, {0x11A84, 0x11A89}, {0x11D46, 0x11D46},
};

} // namespace

CharacterTable::CharacterTable() : m_pages(1) {
    const auto set = [this](const auto& ranges, std::uint8_t entry) {
        for (const auto& [first, last] : ranges)
            for (char32_t point = first; point <= last; ++point)
                cell(point) = entry;
    };
    for (const auto& [first, last] : searched)
        for (char32_t point = first; point <= last; ++point)
            if (QChar::isMark(point))
                cell(point) = extends;
    set(extendingWithoutBeingMarks, extends);
    set(marksWithoutExtending, quiet);
    set(prepending, prepends);
    cell(0x200D) = zeroJoin;
}

std::uint8_t& CharacterTable::cell(char32_t point) {
    std::uint8_t& page = m_pageOf[point >> 8];
    if (page == 0) {
        page = static_cast<std::uint8_t>(m_pages.size());
        m_pages.emplace_back();
    }
    return m_pages[page][point & 0xFF];
}

} // namespace tavrik
