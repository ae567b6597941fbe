#include "model/SquircleOutline.h"

#include <algorithm>
#include <cmath>

namespace tavrik {

namespace {

constexpr double kHalfAxis = 0.85; ///< of half the side

double fourth(double value) {
    return value * value * value * value;
}

/// How far the middle of pixel `index` is from the middle of the square, in half axes.
double distance(int index, int size) {
    const double centre = size / 2.0;
    return std::abs(index - centre + 0.5) / (kHalfAxis * centre);
}

/// The share of a pixel that lies within the outline, from its middle's distance to it in pixels. `dx` and `dy`
/// are in half axes; the distance is that of the tangent, exact enough within the one pixel that matters.
double coverage(double dx, double dy, double halfAxis) {
    const double sum = fourth(dx) + fourth(dy);
    const double gradient = 4 * std::hypot(dx * dx * dx, dy * dy * dy);
    return std::clamp(0.5 - (sum - 1) * halfAxis / gradient, 0.0, 1.0);
}

QRgb faded(QRgb premultiplied, double share) {
    const auto part = static_cast<unsigned>(std::lround(share * 256));
    const auto scale = [part](int channel) {
        return static_cast<int>((static_cast<unsigned>(channel) * part + 128) >> 8);
    };
    return qRgba(scale(qRed(premultiplied)), scale(qGreen(premultiplied)), scale(qBlue(premultiplied)),
                 scale(qAlpha(premultiplied)));
}

} // namespace

bool isInsideSquircle(int x, int y, int size) {
    return fourth(distance(x, size)) + fourth(distance(y, size)) <= 1;
}

QImage maskedToSquircle(const QImage& picture) {
    if (picture.isNull() || picture.width() != picture.height())
        return picture;
    QImage masked = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const int size = masked.width();
    const double halfAxis = kHalfAxis * size / 2;
    for (int y = 0; y < size; ++y) {
        auto* row = reinterpret_cast<QRgb*>(masked.scanLine(y));
        const double dy = distance(y, size);
        for (int x = 0; x < size; ++x) {
            const double dx = distance(x, size);
            // Well inside, where the tangent's distance means nothing.
            if (dx < 0.5 && dy < 0.5)
                continue;
            row[x] = faded(row[x], coverage(dx, dy, halfAxis));
        }
    }
    return masked;
}

} // namespace tavrik
