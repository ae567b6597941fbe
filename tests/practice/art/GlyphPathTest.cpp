#include "practice/art/GlyphPath.h"

#include "practice/art/Glyph.h"

#include <gtest/gtest.h>

using namespace tavrik::practice;

TEST(GlyphPath, ReadsEveryLayerOfEveryGlyph) {
    for (const Glyph& glyph : allGlyphs()) {
        for (const Layer& layer : glyph.layers)
            EXPECT_TRUE(parseGlyphPath(layer.path)) << glyph.name << ": " << layer.path;
    }
}

TEST(GlyphPath, DrawsFiguresWhereTheyAreSaidToBe) {
    const std::pair<const char*, QRect> cases[] = {
        {"M 10 20 H 40 V 60 Z", {10, 20, 30, 40}},  {"R 5 6 70 80 9", {5, 6, 70, 80}},
        {"O 50 40 20", {30, 20, 40, 40}},           {"A 50 50 10 0 180", {40, 40, 20, 10}},
        {"T 90 R 10 0 20 100 0", {0, 10, 100, 20}},
    };
    for (const auto& [text, bounds] : cases) {
        const auto path = parseGlyphPath(text);
        ASSERT_TRUE(path) << text;
        EXPECT_EQ(path->boundingRect().toRect(), bounds) << text;
    }
}

TEST(GlyphPath, RefusesWhatIsNoPath) {
    for (const char* text : {"", "M 1", "M 1 x", "S 1 2", "MM 1 2", "M 1 2 L 3 4 T 45", "12 M 1 2"})
        EXPECT_FALSE(parseGlyphPath(text)) << text;
}
