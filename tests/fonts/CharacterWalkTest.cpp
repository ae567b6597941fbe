#include "fonts/CharacterTable.h"
#include "fonts/FontReplacer.h"

#include <QTextBoundaryFinder>

#include <gtest/gtest.h>

#include <random>

namespace tavrik::test {

namespace {

/// Qt has rules of its own for the scripts of South and South-East Asia. They reach into what stands beside,
/// and cut surrogate pairs. To Unicode's rules their letters are like any others: a Latin one stands in, and
/// another goes before, lest a mark decide the script of symbols.
const QString latinLine = QStringLiteral("b\n");

QString withoutIndic(QString text) {
    for (QChar& unit : text)
        if (unit >= u'\u0900' && unit < u'\u0F00' && !unit.isMark())
            unit = u'b';
    return latinLine + text;
}

/// The plain walk: each character that Qt finds is looked up in the map, by canonical equivalence. Pieces of
/// broken UTF-8 part the text and are copied.
std::string walked(const std::vector<std::string>& pieces, const std::map<std::string, std::string>& map) {
    std::string result;
    QString text;
    const auto flush = [&] {
        QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, withoutIndic(text));
        finder.setPosition(latinLine.size());
        for (qsizetype start = 0, end = finder.toNextBoundary(); end != -1; end = finder.toNextBoundary()) {
            end -= latinLine.size();
            const QString character = text.mid(start, end - start);
            const auto found = map.find(character.normalized(QString::NormalizationForm_D).toStdString());
            result += found == map.end() ? character.toStdString() : found->second;
            start = end;
        }
        text.clear();
    };
    for (const std::string& piece : pieces) {
        const QString units = QString::fromStdString(piece);
        if (units.toStdString() == piece) {
            text += units;
        } else {
            flush();
            result += piece;
        }
    }
    flush();
    return result;
}

std::string utf8(char32_t point) {
    return QString::fromUcs4(&point, 1).toStdString();
}

} // namespace

TEST(CharacterTable, IsTrueToTheTextSegmentationOfThisQt) {
    // Every code point stands between two letters.
    const CharacterTable table;
    std::u32string points = U"a";
    for (char32_t point = 0; point <= 0x10FFFF; ++point)
        if (point < 0xD800 || point > 0xDFFF)
            (points += point) += U'a';
    const QString text = QString::fromStdU32String(points);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    const auto joinsAt = [&finder](qsizetype unit) {
        finder.setPosition(unit);
        return !finder.isAtBoundary();
    };
    qsizetype unit = 1;
    for (std::size_t at = 1; at < points.size(); at += 2) {
        const std::uint8_t entry = table[points[at]];
        const bool joinsBefore = entry == CharacterTable::extends || entry == CharacterTable::zeroJoin;
        // Qt's own rules for Thai leave the sara am alone.
        EXPECT_EQ(joinsAt(unit), joinsBefore && points[at] != 0x0E33) << std::hex << std::uint32_t{points[at]};
        unit += QChar::requiresSurrogates(points[at]) ? 2 : 1;
        EXPECT_EQ(joinsAt(unit++), entry == CharacterTable::prepends) << std::hex << std::uint32_t{points[at]};
    }
}

TEST(CharacterWalk, WritesWhatThePlainWalkWrites) {
    const FontReplacer fonts;
    std::vector<std::string> styled;
    for (const auto& [character, plain] : fonts.allFontCharsToNormal())
        styled.push_back(character);
    const std::vector<std::string> joints = {
        "\u0301",     "\u0308",     "\u0345",     "\u034F", "\u200D", "\u200C", "\uFE0F",     "\uFE0E",
        "\u20E3",     "\u0903",     "\u093E",     "\u094D", "\u0915", "\u0937", "\u0600",     "\u06DD",
        "\u0E01",     "\u05D0",     "\u05B0",     "\u3099", "\uFF9E", "\u1100", "\u1161",     "\u11A8",
        "\uAC00",     "\uD7B0",     "\uA960",     "\u00AD", "\u2028", "\uFEFF", "\r",         "\n",
        "\r\n",       "\t",         "❤",          "🏻",     "👩",     "🏳",     "👨\u200D",   "🅰",
        "🅱",          "Ⓜ",          "🅾",          "🅿",      "🇩",      "🇪",      "\U000E0067", "\U000E007F",
        "\U000E0100", "\U000110BD", "\U0001D165", "\u212A", "\u212B", "é",      "ß",          "日",
        "か",         "Ж",          "½",          "²",      " ",      "  ",     "-",          "\u1885",
        "\U00016FF0"};
    const std::vector<std::string> broken = {"\xFF",         "\xFF\x80", "\xF0\x9D\x90", "\xC0\xAF",
                                             "\xED\xA0\x80", "\xE2\x82", "\xF5"};
    std::random_device device;
    const std::uint32_t seed = device();
    std::mt19937 random(seed);
    const auto below = [&random](std::size_t limit) { return random() % limit; };
    const auto piece = [&]() -> std::string {
        const std::size_t kind = below(100);
        if (kind < 35)
            return {static_cast<char>(' ' + below(95))};
        if (kind < 60)
            return styled[below(styled.size())];
        if (kind < 95)
            return joints[below(joints.size())];
        if (kind < 97)
            return broken[below(broken.size())];
        const char32_t blocks[] = {0,      0x0300, 0x0600,  0x1D00,  0x2000, 0x2C00,
                                   0x3000, 0xFE00, 0x1F100, 0x1F300, 0xE0000};
        return utf8(static_cast<char32_t>(blocks[below(std::size(blocks))] + below(0x200)));
    };
    for (int row = 0; row < 300'000; ++row) {
        std::vector<std::string> pieces;
        std::string text;
        for (std::size_t count = below(9) + (row % 100 == 0 ? 50 : 0); count > 0; --count)
            text += pieces.emplace_back(piece());
        const FontReplacer::FontMap& map = fonts.allFontMaps()[below(20)];
        std::map<std::string, std::string> toStyle = map.letters;
        if (map.digits)
            toStyle.insert(map.digits->begin(), map.digits->end());
        ASSERT_EQ(fonts.convert(text, map.name), walked(pieces, toStyle)) << "seed " << seed << ", row " << row;
        ASSERT_EQ(fonts.convertToNormal(text), walked(pieces, fonts.allFontCharsToNormal()))
            << "seed " << seed << ", row " << row;
    }
}

} // namespace tavrik::test
