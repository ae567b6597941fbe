#include "fonts/FontReplacer.h"

#include <QProcess>

#include <gtest/gtest.h>

namespace tavrik::test {

namespace {

const std::string smallLetters = "abcdefghijklmnopqrstuvwxyz";
const std::string capitals = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
const std::string digits = "0123456789";

} // namespace

TEST(FontReplacer, WritesTheCharactersThatUnicodeNamesAfterTheStyle) {
    const FontReplacer fonts;
    std::string pairs;
    for (const FontReplacer::FontMap& map : fonts.allFontMaps())
        for (const char plain : smallLetters + capitals + (map.digits ? digits : ""))
            pairs += map.name + '\t' + plain + '\t' + fonts.convert(std::string(1, plain), map.name) + '\n';
    QProcess python;
    python.start(QStringLiteral("python3"),
                 {QStringLiteral("-X"), QStringLiteral("utf8"), QStringLiteral(CHARACTER_NAMES)});
    ASSERT_TRUE(python.waitForStarted());
    python.write(QByteArray::fromStdString(pairs));
    python.closeWriteChannel();
    ASSERT_TRUE(python.waitForFinished());
    // Twenty styles of letters, eight of them with digits.
    EXPECT_EQ(python.readAllStandardOutput().toStdString(), std::to_string(20 * 52 + 8 * 10) + " right\n")
        << python.readAllStandardError().toStdString();
}

TEST(FontReplacer, GivesBackWhatItStyled) {
    const FontReplacer fonts;
    std::string allAtOnce;
    std::string allPlain;
    for (const FontReplacer::FontMap& map : fonts.allFontMaps()) {
        const std::string styled = fonts.convert(smallLetters + capitals + digits, map.name);
        // The circles have both cases, and yet their names count as those of one.
        const bool keepsCase = fonts.isMultiCaseFont(map.name) || map.name == "Circled";
        const std::string plain = smallLetters + (keepsCase ? capitals : smallLetters) + digits;
        EXPECT_EQ(fonts.convertToNormal(styled), plain) << map.name;
        allAtOnce += styled;
        allPlain += plain;
    }
    EXPECT_EQ(fonts.convertToNormal(allAtOnce), allPlain);
}

TEST(FontReplacer, TellsWhichStylesKeepTheCase) {
    const FontReplacer fonts;
    std::string oneCase;
    for (const FontReplacer::FontMap& map : fonts.allFontMaps())
        oneCase += fonts.isMultiCaseFont(map.name) ? "" : map.name + ",";
    EXPECT_EQ(oneCase, "Circled,Negative Circled,Parenthesized,Squared,Negative Squared,Small Caps,");
    EXPECT_FALSE(fonts.isMultiCaseFont("mathematical bold"));
}

TEST(FontReplacer, StylesTitles) {
    const FontReplacer fonts;

    const struct {
        const char* style;
        const char* plain;
        const char* styled;
    } cases[] = {
        {"Mathematical Bold", "Alpha 2", "𝐀𝐥𝐩𝐡𝐚 𝟐"},
        {"Mathematical Italic", "Alpha 2", "𝐴𝑙𝑝ℎ𝑎 2"},
        {"Negative Circled", "a0-1", "🅐⓿-❶"},
        {"Small Caps", "Squash Box", "sϙᴜᴀsʜ ʙᴏx"},
        {"Mathematical Bold", "", ""},
        {"Mathematical Bold", "é日本🎮Ж𝐚①½²", "é日本🎮Ж𝐚①½²"},
        // One character with the letter, and so another one.
        {"Mathematical Bold", "a\u0301 a\u200D 1\uFE0F\u20E3 \u0600a a\u0903 b",
         "a\u0301 a\u200D 1\uFE0F\u20E3 \u0600a a\u0903 𝐛"},
        // The same character as the letter.
        {"Mathematical Bold", "\u212A \u212A\u0301", "𝐊 \u212A\u0301"},
        {"Mathematical Bold", "a\xFFz \xF0\x9D\x90", "𝐚\xFF𝐳 \xF0\x9D\x90"},
        {"No Such Style", "Alpha", "Alpha"},
        {"mathematical bold", "Alpha", "Alpha"},
    };

    for (const auto& [style, plain, styled] : cases)
        EXPECT_EQ(fonts.convert(plain, style), styled) << style;
}

TEST(FontReplacer, GivesBackPlainTitles) {
    const FontReplacer fonts;
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},
        {"𝐀𝔩ⓟ🅗ａ ❶⓪", "Alpha 10"},
        {"🄷🄴🄻🄻🄾 ℌℯ⒣", "hello Heh"},
        {"Six SEXES", "Six SEXES"},
        {"é日本🎮ЖK½²", "é日本🎮ЖK½²"},
        {"𝐚\u0301 🅰\uFE0F 🅰 👨\u200D🅰 👨\u200D🅐", "𝐚\u0301 🅰\uFE0F a 👨\u200D🅰 👨\u200Da"},
        {"𝐚\xF0\x9D\x90𝐛", "a\xF0\x9D\x90\x62"},
    };
    for (const auto& [styled, plain] : cases)
        EXPECT_EQ(fonts.convertToNormal(styled), plain);
}

} // namespace tavrik::test
