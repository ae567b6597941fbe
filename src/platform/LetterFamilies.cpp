#include "platform/LetterFamilies.h"

namespace tavrik {

std::string_view familyOfStyledLetter(char32_t letter) {
    const auto within = [letter](char32_t first, char32_t last) { return letter >= first && letter <= last; };
    if (within(0x2100, 0x214F) || within(0x1D400, 0x1D7FF))
        return "Noto Sans Math";
    if (within(0x2460, 0x24FF) || within(0x2776, 0x277F) || within(0x1F110, 0x1F189))
        return "Noto Sans Symbols";
    if (within(0x0250, 0x02AF) || within(0x1D00, 0x1D7F) || letter == 0x03D9 || letter == 0xA730)
        return "Noto Sans";
    return {};
}

} // namespace tavrik
