#include "practice/art/SoftShadow.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace tavrik::practice {
namespace {

/// One pass of a running mean over a line of `count` bytes that lie `stride` apart.
void blurLine(std::uint8_t* line, int count, std::ptrdiff_t stride, int radius,
              std::vector<std::uint8_t>& copy) {
    copy.resize(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        copy[static_cast<std::size_t>(i)] = line[i * stride];
    const auto at = [&](int i) -> int { return i < 0 || i >= count ? 0 : copy[static_cast<std::size_t>(i)]; };
    const int width = 2 * radius + 1;
    int sum = 0;
    for (int i = -radius; i <= radius; ++i)
        sum += at(i);
    for (int i = 0; i < count; ++i) {
        line[i * stride] = static_cast<std::uint8_t>(sum / width);
        sum += at(i + radius + 1) - at(i - radius);
    }
}

/// Three running means come close to a bell curve.
void blurAlpha(QImage& alpha, int radius) {
    constexpr int kPasses = 3;
    std::vector<std::uint8_t> copy;
    for (int pass = 0; pass < kPasses; ++pass) {
        for (int y = 0; y < alpha.height(); ++y)
            blurLine(alpha.scanLine(y), alpha.width(), 1, radius, copy);
        for (int x = 0; x < alpha.width(); ++x)
            blurLine(alpha.bits() + x, alpha.height(), alpha.bytesPerLine(), radius, copy);
    }
}

} // namespace

void drawSoftShadow(QPainter& painter, const QRectF& place, const QImage& picture, double blur,
                    const QColor& colour) {
    // A wide blur has no fine structure: a smaller picture, scaled up again, looks the same and costs little.
    const double reduction = std::max(1.0, blur / 6);
    const QSize small(std::max(1, qRound(picture.width() / reduction)),
                      std::max(1, qRound(picture.height() / reduction)));
    QImage alpha = picture.scaled(small, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                       .convertToFormat(QImage::Format_Alpha8);
    blurAlpha(alpha, std::max(1, qRound(blur / reduction / 1.8)));

    QImage shadow(small, QImage::Format_ARGB32_Premultiplied);
    shadow.fill(colour);
    QPainter cutter(&shadow);
    cutter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    cutter.drawImage(0, 0, alpha);
    cutter.end();
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, shadow);
    painter.restore();
}

} // namespace tavrik::practice
