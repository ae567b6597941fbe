#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <map>
#include <string>

namespace tavrik {

/// One style by ASCII code: the UTF-8 that is written for each character. The Replacement of a CharacterWalk
/// into that style.
class StyleTable {
public:
    static constexpr std::size_t growth = 4;

    StyleTable();

    /// Takes over what a map says of plain and styled characters.
    void add(const std::map<std::string, std::string>& map);

    char* ascii(char character, char* out) const {
        const Written& written = m_written[static_cast<unsigned char>(character)];
        std::memcpy(out, written.bytes.data(), written.bytes.size());
        return out + written.count;
    }

    /// The Kelvin sign: the only code point beyond ASCII that is, to Unicode, the same character as a plain
    /// letter.
    static bool rewrites(char32_t point, std::uint8_t) { return point == 0x212A; }

    char* write(char32_t, std::uint8_t, char* out) const { return ascii('K', out); }

private:
    struct Written {
        std::array<char, 4> bytes;
        std::uint32_t count;
    };

    std::array<Written, 128> m_written;
};

} // namespace tavrik
