#include "fonts/FontReplacer.h"

#include <QProcess>
#include <QStringList>
#include <QTextBoundaryFinder>

#include <gtest/gtest.h>

#include <random>

namespace tavrik::test {

namespace {

const std::string smallLetters = "abcdefghijklmnopqrstuvwxyz";
const std::string capitals = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
const std::string digits = "0123456789";

/// The plain walk: each character that Qt finds is looked up in the map, by canonical equivalence.
std::string walked(const QString& text, const std::map<std::string, std::string>& map) {
    // A Latin line goes before, lest a mark at the start decide which script's rules Qt follows.
    const QString line = QStringLiteral("b\n");
    std::string result;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, line + text);
    finder.setPosition(line.size());
    for (qsizetype start = 0, end = finder.toNextBoundary(); end != -1; end = finder.toNextBoundary()) {
        // Qt cuts surrogate pairs of some scripts; no character ends there.
        if (end < line.size() + text.size() && text[end - line.size()].isLowSurrogate())
            continue;
        const QString character = text.mid(start, end - line.size() - start);
        const auto found = map.find(character.normalized(QString::NormalizationForm_D).toStdString());
        result += found == map.end() ? character.toStdString() : found->second;
        start = end - line.size();
    }
    return result;
}

struct FontReplacerTest : testing::Test {
    FontReplacerTest() {
        for (const auto& [character, plain] : fonts.allFontCharsToNormal())
            styled << QString::fromStdString(character);
    }

    std::size_t below(std::size_t limit) { return random() % limit; }

    const auto& anyOf(const auto& list) { return list[below(std::size_t(std::size(list)))]; }

    /// One character or part of one, of a kind that matters to someone.
    QString piece() {
        const std::size_t kind = below(100);
        const char32_t point = kind < 35 ? U' ' + char32_t(below(95)) : anyOf(blocks) + char32_t(below(0x200));
        return kind < 35 || kind >= 80 ? QString::fromUcs4(&point, 1) : anyOf(kind < 55 ? styled : joints);
    }

    // No letters or marks of South and South-East Asia, for which Qt has rules of its own.
    const QStringList joints =
        QStringLiteral("\u0301 \u0308 \u0345 \u034F \u200D \u200C \uFE0F \uFE0E \u20E3 "
                       "\u0600 \u06DD \u05D0 \u05B0 \u3099 \uFF9E \u1100 \u1161 \u11A8 \uAC00 \uD7B0 \uA960 "
                       "\u00AD \u2028 \uFEFF \r \n \r\n \t ❤ 🏻 👩 🏳 👨\u200D 🅰 🅱 Ⓜ 🅾 🅿 🇩 🇪 \U000E0067 "
                       "\U000E007F \U000E0100 \U000110BD \U0001D165 \u212A \u212B é ß 日 か Ж ½ ² - \u1885 "
                       "\U00016FF0")
            .split(u' ');
    const char32_t blocks[14] = {0,      0x300,  0x600,  0x1D00, 0x1F00,  0x2000,  0x2C00,
                                 0x3000, 0xA600, 0xFB00, 0xFE00, 0x1F100, 0x1F300, 0xE0000};
    const FontReplacer fonts;
    QStringList styled;
    const unsigned seed = std::random_device()();
    const testing::ScopedTrace trace{__FILE__, __LINE__, "seed " + std::to_string(seed)};
    std::mt19937 random{seed};
};

} // namespace

TEST_F(FontReplacerTest, WritesTheCharactersThatUnicodeNamesAfterTheStyle) {
    std::string pairs;
    for (const FontReplacer::FontMap& map : fonts.allFontMaps())
        for (const char plain : smallLetters + capitals + (map.digits ? digits : ""))
            pairs += map.name + '\t' + plain + '\t' + fonts.convert(std::string(1, plain), map.name) + '\n';
    QProcess python;
    python.startCommand(QStringLiteral("python3 -X utf8 \"" CHARACTER_NAMES "\""));
    python.write(QByteArray::fromStdString(pairs));
    python.closeWriteChannel();
    ASSERT_TRUE(python.waitForFinished());
    // Twenty styles of letters, eight of them with digits.
    EXPECT_EQ(python.readAllStandardOutput().toStdString(), std::to_string(20 * 52 + 8 * 10) + " right\n")
        << python.readAllStandardError().toStdString();
}

TEST_F(FontReplacerTest, GivesBackWhatItStyledAndTellsWhichStylesKeepTheCase) {
    std::string oneCase;
    for (const FontReplacer::FontMap& map : fonts.allFontMaps()) {
        oneCase += fonts.isMultiCaseFont(map.name) ? "" : map.name + ",";
        // The circles have both cases, and yet their names count as those of one.
        const bool keepsCase = fonts.isMultiCaseFont(map.name) || map.name == "Circled";
        EXPECT_EQ(fonts.convertToNormal(fonts.convert(smallLetters + capitals + digits, map.name)),
                  smallLetters + (keepsCase ? capitals : smallLetters) + digits);
    }
    EXPECT_EQ(oneCase, "Circled,Negative Circled,Parenthesized,Squared,Negative Squared,Small Caps,");
    EXPECT_FALSE(fonts.isMultiCaseFont("mathematical bold"));
    EXPECT_EQ(fonts.convert("Alpha", "mathematical bold"), "Alpha");
}

TEST_F(FontReplacerTest, FoldsStyleCaseAndAccents) {
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},
        {"Plain Title 2", "plain title 2"},
        {"𝐀𝕝ⓟ🅗ａ 🅱\uFE0F ʙ\u0301 Ǆungla ﬁn ⒜ ½", "alpha b b dzungla fin a 1⁄2"},
        {"Straße STRASSE STRAẞE Größe İstanbul ISPARTA ışık",
         "strasse strasse strasse grosse istanbul isparta ısık"},
        {"Ὀδυσσεύς ΟΔΥΣΣΕΎΣ ᾼ Ёлка Й Phở Việt Đà Lạt", "οδυσσευσ οδυσσευσ α елка и pho viet đa lat"},
        {"한국어 \u1112\u1161\u11AB 日本 🎮 \u212Bngstro\u0308m \u212A", "한국어 한 日本 🎮 angstrom k"},
        // The small letters of the first three are among the styled ones.
        {"\uA7AE\u01A6\u03D8 a\xFF", "irq a\uFFFD"},
    };
    for (const auto& [text, folded] : cases)
        EXPECT_EQ(fonts.folded(text), folded);
}

TEST_F(FontReplacerTest, FoldsNothingMoreTheSecondTime) {
    // Every code point of the planes in use, then any neighbours.
    for (char32_t row = 0; row < 0x30000 + 100'000; ++row) {
        QString text = row < 0x30000 ? QString::fromUcs4(&row, 1) : QString();
        for (std::size_t count = row < 0x30000 ? 0 : below(8); count > 0; --count)
            text += piece();
        const std::string once = fonts.folded(text.toStdString());
        ASSERT_EQ(fonts.folded(once), once);
    }
}

TEST_F(FontReplacerTest, KnowsEveryCodePointAsThisQtDoes) {
    const FontReplacer::FontMap& font = fonts.allFontMaps()[1];
    for (char32_t block = 0; block <= 0x10FF00; block += 0x100) {
        QString text = QStringLiteral("a");
        for (char32_t point = block; point < block + 0x100; ++point)
            // Qt's own rules for Thai leave the sara am alone.
            if (!QChar::isSurrogate(point) && point != 0x0E33)
                text += QString::fromUcs4(&point, 1) + u'a';
        EXPECT_EQ(fonts.convert(text.toStdString(), font.name), walked(text, font.letters));
    }
}

TEST_F(FontReplacerTest, WritesWhatThePlainWalkWrites) {
    // One character, though the rules for the script of its second part would cut it in isolation.
    const std::string joined = "N👩\u094D\u200DⓂn";
    EXPECT_EQ(fonts.convertToNormal(joined), joined);

    const std::string gaps[] = {"\xFF",         "\xFF\x80", "\xF0\x9D\x90", "\xC0\xAF",
                                "\xED\xA0\x80", "\xE2\x82", "\xF5"};
    for (int row = 0; row < 300'000; ++row) {
        const FontReplacer::FontMap& font = anyOf(fonts.allFontMaps());
        std::map<std::string, std::string> toStyle = font.letters;
        if (font.digits)
            toStyle.insert(font.digits->begin(), font.digits->end());
        std::string text, inStyle, plain;
        for (std::size_t runs = below(10) == 0 ? 3 : 1; runs > 0; --runs) {
            QString run;
            for (std::size_t count = below(9) + (row % 100 == 0 ? 50 : 0); count > 0; --count)
                run += piece();
            const std::string gap = runs > 1 ? anyOf(gaps) : ""; // is no UTF-8: parts the text and is copied
            text += run.toStdString() + gap;
            inStyle += walked(run, toStyle) + gap;
            plain += walked(run, fonts.allFontCharsToNormal()) + gap;
        }
        ASSERT_EQ(fonts.convert(text, font.name), inStyle);
        ASSERT_EQ(fonts.convertToNormal(text), plain);
    }
}

} // namespace tavrik::test
