#include "icons/SquircleTest.h"

#include "model/SquircleOutline.h"

#include <algorithm>

namespace tavrik {

namespace {

constexpr int kGrid = 32;         ///< samples a side, or up to twice as many
constexpr int kOpaqueAbove = 128; ///< alpha
constexpr double kLeastInside = 0.8;
constexpr double kMostOutside = 0.1;

struct Samples {
    int all = 0;
    int opaque = 0;

    void add(bool isOpaque) {
        ++all;
        opaque += isOpaque ? 1 : 0;
    }

    double opaqueShare() const { return double(opaque) / all; }
};

} // namespace

bool isSquircle(const QImage& picture) {
    if (picture.isNull() || picture.width() != picture.height())
        return false;

    const int side = std::min(picture.width(), kSquircleTestSide);
    QImage drawn = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (picture.width() > side)
        drawn = drawn.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (drawn.isNull())
        return false;

    Samples inside;
    Samples outside;
    const int step = std::max(side / kGrid, 1);
    for (int y = 0; y < side; y += step) {
        for (int x = 0; x < side; x += step)
            (isInsideSquircle(x, y, side) ? inside : outside).add(qAlpha(drawn.pixel(x, y)) > kOpaqueAbove);
    }

    if (inside.all == 0 || inside.opaqueShare() <= kLeastInside)
        return false;
    return outside.all == 0 || outside.opaqueShare() < kMostOutside;
}

} // namespace tavrik
