#include "icons/SquircleTest.h"

#include "model/SquircleOutline.h"

#include <algorithm>
#include <cstdint>

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

/// Of the pixel (x, y) when the picture is drawn at one part in `scale` of its size: the mean of those it
/// covers.
int alphaAt(int x, int y, const QImage& picture, int scale) {
    std::int64_t sum = 0;
    for (int row = y * scale; row < (y + 1) * scale; ++row) {
        const auto* pixels = reinterpret_cast<const QRgb*>(picture.constScanLine(row)) + x * scale;
        for (int i = 0; i < scale; ++i)
            sum += qAlpha(pixels[i]);
    }
    const auto covered = std::int64_t{scale} * scale;
    return static_cast<int>((sum + covered / 2) / covered);
}

} // namespace

bool isSquircle(const QImage& picture) {
    if (picture.width() != picture.height())
        return false;
    const int side = std::min(picture.width(), kSquircleTestSide);
    QImage drawn = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    // A whole multiple is averaged where it is looked at, one pixel in sixteen of the smaller picture.
    if (side > 0 && drawn.width() % side != 0)
        drawn = drawn.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (drawn.isNull())
        return false;

    Samples inside;
    Samples outside;
    const int scale = drawn.width() / side;
    const int step = std::max(side / kGrid, 1);
    for (int y = 0; y < side; y += step) {
        for (int x = 0; x < side; x += step)
            (isInsideSquircle(x, y, side) ? inside : outside).add(alphaAt(x, y, drawn, scale) > kOpaqueAbove);
    }

    if (inside.all == 0 || inside.opaqueShare() <= kLeastInside)
        return false;
    return outside.all == 0 || outside.opaqueShare() < kMostOutside;
}

} // namespace tavrik
