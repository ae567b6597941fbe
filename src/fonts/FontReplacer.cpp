#include "fonts/FontReplacer.h"

#include "fonts/CharacterWalk.h"
#include "fonts/StyledAlphabets.h"
#include "platform/Utf8.h"

#include <QString>

#include <algorithm>

namespace tavrik {

namespace {

constexpr std::string_view smallLetters = "abcdefghijklmnopqrstuvwxyz";
constexpr std::string_view capitals = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::string_view digits = "0123456789";

std::map<std::string, std::string> mapped(const StyledAlphabet& alphabet, std::string_view plain) {
    std::map<std::string, std::string> map;
    for (const char character : plain) {
        const char32_t styled = alphabet(character);
        map.emplace(std::string(1, character), QString::fromUcs4(&styled, 1).toStdString());
    }
    return map;
}

/// The Replacement of a CharacterWalk back to plain text.
struct ToPlain {
    static constexpr std::size_t growth = 1;

    static char* ascii(char character, char* out) {
        *out = character;
        return out + 1;
    }

    static bool rewrites(char32_t, std::uint8_t entry) { return CharacterTable::isStyled(entry); }

    static char* write(char32_t, std::uint8_t entry, char* out) { return ascii(static_cast<char>(entry), out); }
};

} // namespace

FontReplacer::FontReplacer() {
    for (const StyledAlphabet& alphabet : styledAlphabets()) {
        FontMap& map = m_allFontMaps.emplace_back();
        StyleTable& table = m_styleTables.emplace_back();
        map.name = alphabet.name;
        map.letters = mapped(alphabet, capitals);
        map.letters.merge(mapped(alphabet, smallLetters));
        table.add(map.letters);
        if (alphabet.zero != 0) {
            map.digits = mapped(alphabet, digits);
            table.add(*map.digits);
        }
    }
    // Capitals come first in a map, so that the small letter stays where both share a styled character.
    for (const FontMap& map : m_allFontMaps)
        for (const auto& [plain, styled] : map.letters)
            m_allFontCharsToNormal[styled] = plain;
    for (const FontMap& map : m_allFontMaps)
        if (map.digits)
            for (const auto& [plain, styled] : *map.digits)
                m_allFontCharsToNormal[styled] = plain;
    for (const auto& [styled, plain] : m_allFontCharsToNormal) {
        std::string_view rest = styled;
        if (const auto point = takeCodePoint(rest))
            m_characters.setPlain(*point, plain.front());
    }
}

std::optional<std::size_t> FontReplacer::indexOf(std::string_view name) const {
    const auto found = std::ranges::find(m_allFontMaps, name, &FontMap::name);
    if (found == m_allFontMaps.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - m_allFontMaps.begin());
}

bool FontReplacer::hasFont(std::string_view name) const {
    return indexOf(name).has_value();
}

std::string FontReplacer::convert(std::string_view text, std::string_view fontName) const {
    const auto index = indexOf(fontName);
    if (!index)
        return std::string(text);
    return CharacterWalk(text, m_characters, m_styleTables[*index])();
}

std::string FontReplacer::convertToNormal(std::string_view text) const {
    return CharacterWalk(text, m_characters, ToPlain())();
}

bool FontReplacer::isMultiCaseFont(std::string_view fontName) const {
    const auto index = indexOf(fontName);
    return index && styledAlphabets()[*index].multiCase;
}

} // namespace tavrik
