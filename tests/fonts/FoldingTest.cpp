#include "fonts/FontReplacer.h"

#include <QString>

#include <gtest/gtest.h>

#include <random>

namespace tavrik::test {

TEST(Folding, FoldsStyleCaseAndAccents) {
    const FontReplacer fonts;
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},
        {"Plain Title 2", "plain title 2"},
        {"𝐀𝕝ⓟ🅗ａ 🅱\uFE0F ʙ\u0301", "alpha b b"},
        {"Ǆungla ﬁn ⒜ ½", "dzungla fin a 1⁄2"},
        {"Straße STRASSE STRAẞE Größe", "strasse strasse strasse grosse"},
        {"İstanbul ISPARTA ışık", "istanbul isparta ısık"},
        {"Ὀδυσσεύς ΟΔΥΣΣΕΎΣ ᾼ", "οδυσσευσ οδυσσευσ α"},
        {"Phở Việt Đà Lạt", "pho viet đa lat"},
        {"한국어 \u1112\u1161\u11AB", "한국어 한"},
        {"Ёлка Й", "елка и"},
        {"\u212Bngstro\u0308m \u212A", "angstrom k"},
        {"日本 🎮", "日本 🎮"},
        // The small letters of these capitals are among the styled ones.
        {"\uA7AE\u01A6\u03D8", "irq"},
        {"a\xFF", "a\uFFFD"},
    };
    for (const auto& [text, folded] : cases)
        EXPECT_EQ(fonts.folded(text), folded);
}

TEST(Folding, ChangesNothingMoreTheSecondTime) {
    const FontReplacer fonts;
    const auto check = [&fonts](const std::u32string& points) {
        const std::string once = fonts.folded(QString::fromStdU32String(points).toStdString());
        ASSERT_EQ(fonts.folded(once), once) << QString::fromStdU32String(points).toStdString();
    };
    for (char32_t point = 0; point < 0x30000; ++point)
        check({point});
    std::random_device device;
    const std::uint32_t seed = device();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const char32_t starts[] = {0x20,   0xC0,   0x300,  0x370,   0x900,   0x1100, 0x1D00,
                               0x1E00, 0x1F00, 0x2000, 0x24A0,  0x3040,  0xA720, 0xAC00,
                               0xFB00, 0xFE00, 0xFF00, 0x1D400, 0x1F130, 0x1F3F0};
    for (int row = 0; row < 100'000; ++row) {
        std::u32string points;
        for (std::size_t count = random() % 8; count > 0; --count)
            points += static_cast<char32_t>(starts[random() % std::size(starts)] + random() % 0x60);
        check(points);
    }
}

} // namespace tavrik::test
