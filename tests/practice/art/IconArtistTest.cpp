#include "practice/art/IconArtist.h"

#include "practice/art/Glyph.h"
#include "practice/art/GlyphPath.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

using namespace tavrik::practice;

namespace {

const IconStyle kBlue{Outline::squircle, QColor(0x5A, 0xC8, 0xFA), QColor(0x17, 0x69, 0xE0), "compass"};

bool looksLikeSquircle(const QImage& icon) {
    const double middle = icon.width() / 2.0;
    const double axis = 0.85 * middle;
    const auto power = [&](int place) { return std::pow(std::abs(place - middle + 0.5) / axis, 4); };
    int inside = 0, outside = 0, opaqueInside = 0, opaqueOutside = 0;
    for (int y = 0; y < icon.height(); ++y) {
        for (int x = 0; x < icon.width(); ++x) {
            const bool within = power(x) + power(y) <= 1;
            (within ? inside : outside) += 1;
            (within ? opaqueInside : opaqueOutside) += qAlpha(icon.pixel(x, y)) > 128 ? 1 : 0;
        }
    }
    return opaqueInside > 0.8 * inside && opaqueOutside < 0.1 * outside;
}

} // namespace

TEST(IconArtist, EveryGlyphHasItsOwnLookWithinTheCanvasOnAPlateAndWithoutOne) {
    std::set<QByteArray> looks;
    for (Outline outline : {Outline::squircle, Outline::round, Outline::square, Outline::free}) {
        std::vector<std::string> glyphs = glyphNames();
        glyphs.insert(glyphs.begin(), "no such glyph");
        for (const std::string& glyph : glyphs) {
            const QImage icon = drawIcon({outline, kBlue.top, kBlue.bottom, glyph}, 64);
            const QByteArray pixels(reinterpret_cast<const char*>(icon.constBits()), icon.sizeInBytes());
            EXPECT_TRUE(looks.insert(pixels).second) << glyph << " is empty or looks like another";
            EXPECT_EQ(looksLikeSquircle(icon), outline == Outline::squircle) << glyph;
            for (int i = 0; i < 64; ++i)
                for (QRgb edge : {icon.pixel(i, 0), icon.pixel(i, 63), icon.pixel(0, i), icon.pixel(63, i)})
                    ASSERT_LT(qAlpha(edge), 128) << glyph << " runs over the edge";
        }
    }
}

TEST(IconArtist, CanReadEveryLayerOfEveryGlyph) {
    for (const Glyph& glyph : allGlyphs())
        for (const Layer& layer : glyph.layers)
            EXPECT_TRUE(parseGlyphPath(layer.path)) << glyph.name << ": " << layer.path;
}
