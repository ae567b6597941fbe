#pragma once

#include "fonts/CharacterTable.h"
#include "fonts/StyleTable.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavrik {

/// The twenty styled alphabets: look-alikes of the plain Latin letters, and for some styles of the digits, from
/// the mathematical, enclosed and fullwidth blocks of Unicode.
///
/// Texts are UTF-8. They are walked by user-perceived characters (extended grapheme clusters, compared by
/// canonical equivalence): a letter with a combining accent is another character than the letter and passes
/// through. Bytes that are no UTF-8 pass through too. Immutable; pure; any thread.
class FontReplacer {
public:
    /// One style, plain character to styled character.
    struct FontMap {
        std::string name;
        std::map<std::string, std::string> letters;
        std::optional<std::map<std::string, std::string>> digits;
    };

    FontReplacer();

    /// In the order of the font picker.
    const std::vector<FontMap>& allFontMaps() const { return m_allFontMaps; }

    /// Every styled character of every style to its plain one. Where a style writes both cases alike, it is the
    /// small letter.
    const std::map<std::string, std::string>& allFontCharsToNormal() const { return m_allFontCharsToNormal; }

    bool hasFont(std::string_view name) const;

    /// The text in the style; as it stands when no style has exactly this name. What may be styled already goes
    /// through `convertToNormal` first.
    std::string convert(std::string_view text, std::string_view fontName) const;

    /// The text with every styled character replaced by its plain one.
    std::string convertToNormal(std::string_view text) const;

    /// Whether the style keeps small letters and capitals apart. False for an unknown name.
    bool isMultiCaseFont(std::string_view fontName) const;

    /// The text as it is compared in search and sorting: plain, in small letters, without accents, in composed
    /// form. Folding twice changes nothing more.
    std::string folded(std::string_view text) const;

private:
    std::optional<std::size_t> indexOf(std::string_view name) const;

    std::vector<FontMap> m_allFontMaps;
    std::map<std::string, std::string> m_allFontCharsToNormal;
    CharacterTable m_characters;
    std::vector<StyleTable> m_styleTables; ///< beside `m_allFontMaps`
};

} // namespace tavrik
