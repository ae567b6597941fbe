#include "icons/SquircleTest.h"

#include "icons/ShapeCacheKey.h"
#include "model/SquircleOutline.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace tavrik {
namespace {

QImage filled(int side, int alpha = 255) {
    QImage picture(side, side, QImage::Format_ARGB32);
    picture.fill(QColor(200, 30, 60, alpha));
    return picture;
}

QImage squircle(int side, int alpha = 255) {
    return maskedToSquircle(filled(side, alpha));
}

QImage disc(int side) {
    QImage picture = filled(side, 0);
    QPainter painter(&picture);
    painter.setBrush(Qt::blue);
    painter.drawEllipse(picture.rect());
    return picture;
}

/// A squircle without the columns from one to another, and again after so many.
QImage striped(int side, int from, int to, int every) {
    QImage picture = squircle(side);
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    for (int x = from; x < side; x += every)
        painter.fillRect(x, 0, to - from, side, Qt::transparent);
    return picture;
}

TEST(SquircleTest, TellsTheStandardOutlineFromOthers) {
    const std::tuple<const char*, QImage, bool> cases[] = {
        {"null", QImage(), false},
        {"transparent", filled(64, 0), false},
        {"opaque to the corners", filled(1024).convertToFormat(QImage::Format_RGB32), false},
        {"opaque, 16 pixels", filled(16), false},
        {"too few pixels to have any outside", filled(2), true},
        {"not square", squircle(1024).copy(0, 0, 1024, 1023), false},
        {"disc", disc(1024), false},
        {"squircle of 16 pixels", squircle(16), true},
        {"squircle that no grid fits", squircle(100), true},
        {"squircle of odd size", squircle(300), true},
        {"squircle of 1024 pixels", squircle(1024), true},
        {"faint squircle", squircle(128, 128), false},
        {"squircle just strong enough", squircle(128, 129), true},
        {"cut by less than a fifth", striped(128, 100, 128, 128), true},
        {"cut by more than a fifth", striped(128, 90, 128, 128), false},
        {"gaps that vanish when scaled", striped(1024, 3, 5, 8), true},
    };
    for (const auto& [what, picture, expected] : cases)
        EXPECT_EQ(isSquircle(picture), expected) << what;
}

TEST(ShapeCacheKey, IsMadeOfTheLengthAndTheFirstHundredBytes) {
    EXPECT_EQ(shapeCacheKey(3, bytesOf("abc")), "000000000002D57F");
    Bytes bytes(120);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<std::uint8_t>(7 * i);
    EXPECT_EQ(shapeCacheKey(1000, bytes), "61AA468444A32C46") << "beyond 64 bits";
}

} // namespace
} // namespace tavrik
