#include "practice/art/IconArtist.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

using namespace tavrik::practice;

namespace {

const IconStyle kBlue{Outline::squircle, QColor(0x5A, 0xC8, 0xFA), QColor(0x17, 0x69, 0xE0), "compass"};

struct Coverage {
    double inside = 0;  ///< share of the standard outline that is opaque
    double outside = 0; ///< share of the rest that is
};

Coverage coverageOf(const QImage& icon) {
    const double middle = icon.width() / 2.0;
    const double axis = 0.85 * middle;
    int inside = 0, outside = 0, opaqueInside = 0, opaqueOutside = 0;
    for (int y = 0; y < icon.height(); ++y) {
        for (int x = 0; x < icon.width(); ++x) {
            const bool within = std::pow(std::abs(x - middle + 0.5) / axis, 4) +
                                    std::pow(std::abs(y - middle + 0.5) / axis, 4) <=
                                1;
            const bool opaque = qAlpha(icon.pixel(x, y)) > 128;
            (within ? inside : outside) += 1;
            (within ? opaqueInside : opaqueOutside) += opaque ? 1 : 0;
        }
    }
    return {double(opaqueInside) / inside, double(opaqueOutside) / outside};
}

bool looksLikeSquircle(const QImage& icon) {
    const Coverage coverage = coverageOf(icon);
    return coverage.inside > 0.8 && coverage.outside < 0.1;
}

} // namespace

TEST(IconArtist, OnlySquirclesHaveTheStandardOutlineAtEverySize) {
    for (int size : {16, 32, 64, 128, 1024}) {
        for (auto [outline, expected] : {std::pair{Outline::squircle, true}, std::pair{Outline::round, false},
                                         std::pair{Outline::square, false}}) {
            IconStyle style = kBlue;
            style.outline = outline;
            const QImage icon = drawIcon(style, size);
            EXPECT_EQ(icon.size(), QSize(size, size));
            EXPECT_EQ(looksLikeSquircle(icon), expected) << int(outline) << " at " << size;
        }
    }
}

TEST(IconArtist, EveryGlyphHasItsOwnLookOnAPlateAndWithoutOne) {
    std::set<QByteArray> looks;
    for (Outline outline : {Outline::squircle, Outline::free}) {
        IconStyle style = kBlue;
        style.outline = outline;
        style.glyph = "no such glyph";
        looks.insert(QByteArray(reinterpret_cast<const char*>(drawIcon(style, 64).constBits()), 64 * 64 * 4));
        for (const std::string& glyph : glyphNames()) {
            style.glyph = glyph;
            const QImage icon = drawIcon(style, 64);
            const QByteArray pixels(reinterpret_cast<const char*>(icon.constBits()), icon.sizeInBytes());
            EXPECT_TRUE(looks.insert(pixels).second) << glyph << " is empty or looks like another";
        }
    }
}

TEST(IconArtist, FreeIconsAreSilhouettesWithinTheirCanvas) {
    for (const std::string& glyph : glyphNames()) {
        const QImage icon = drawIcon({Outline::free, kBlue.top, kBlue.bottom, glyph}, 128);
        EXPECT_GT(coverageOf(icon).inside, 0.08) << glyph;
        EXPECT_FALSE(looksLikeSquircle(icon)) << glyph;
        for (int i = 0; i < 128; ++i) {
            for (QRgb edge : {icon.pixel(i, 0), icon.pixel(i, 127), icon.pixel(0, i), icon.pixel(127, i)})
                ASSERT_LT(qAlpha(edge), 128) << glyph << " runs over the edge";
        }
    }
}

TEST(IconArtist, KeepsTheGlyphReadableOnEveryPlate) {
    for (auto [top, bottom] :
         {std::pair{"#ffffff", "#e4e8ee"}, std::pair{"#ffd86b", "#f59e0b"}, std::pair{"#5ac8fa", "#1769e0"},
          std::pair{"#1f2430", "#101318"}, std::pair{"#6ee7a0", "#12a150"}}) {
        IconStyle style{Outline::squircle, QColor(QLatin1String(top)), QColor(QLatin1String(bottom)), "play"};
        const QImage icon = drawIcon(style, 128);
        const QColor glyph = icon.pixelColor(64, 64);
        const QColor plate = icon.pixelColor(24, 64);
        EXPECT_GT(std::abs(qGray(glyph.rgb()) - qGray(plate.rgb())), 60) << top;
    }
}
