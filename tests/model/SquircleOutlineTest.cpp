#include "model/SquircleOutline.h"

#include <gtest/gtest.h>

namespace tavrik {
namespace {

TEST(SquircleOutline, CutsASuperellipseWithASoftEdgeThatKeepsTheArea) {
    QImage square(256, 256, QImage::Format_ARGB32_Premultiplied);
    square.fill(QColor(200, 100, 50));
    const QImage cut = maskedToSquircle(square);
    double area = 0;
    int soft = 0;
    for (int place = 0; place < 256 * 256; ++place) {
        const int x = place % 256;
        const int y = place / 256;
        const int alpha = qAlpha(cut.pixel(x, y));
        const bool isSoft = alpha > 0 && alpha < 255;
        area += alpha / 255.0;
        soft += isSoft ? 1 : 0;
        // Only a pixel that the outline touches may differ from the sharp answer.
        EXPECT_TRUE(isSoft || (alpha == 255) == isInsideSquircle(x, y, 256)) << x << " " << y;
    }
    // The area of |x|^4 + |y|^4 = r^4 is 3.70815 r^2.
    EXPECT_NEAR(area, 3.70815 * 108.8 * 108.8, 30);
    EXPECT_TRUE(soft > 500 && soft < 1200) << soft;
    EXPECT_EQ(cut.pixel(128, 128), qRgb(200, 100, 50));
}

} // namespace
} // namespace tavrik
