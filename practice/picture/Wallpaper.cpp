#include "practice/picture/Wallpaper.h"

#include <QImage>
#include <QLinearGradient>
#include <QPainterPath>
#include <QRadialGradient>

#include <array>
#include <cmath>
#include <cstdint>

namespace tavrik::practice {

namespace {

struct Scheme {
    std::array<QColor, 4> sky; ///< from top to bottom
    std::array<QColor, 3> glows;
    std::array<QColor, 3> ribbons;
};

Scheme schemeOf(Appearance appearance) {
    if (appearance == Appearance::light)
        return {{QColor(0xDC, 0xEB, 0xFB), QColor(0xDF, 0xE3, 0xFA), QColor(0xF0, 0xE4, 0xF4),
                 QColor(0xFB, 0xE9, 0xE2)},
                {QColor(0x9E, 0xD5, 0xFF, 100), QColor(0xC7, 0xB5, 0xFF, 86), QColor(0xFF, 0xC9, 0xB8, 92)},
                {QColor(255, 255, 255, 88), QColor(0x8F, 0xB4, 0xFF, 44), QColor(0xD8, 0x9B, 0xEA, 36)}};
    return {{QColor(0x10, 0x18, 0x30), QColor(0x19, 0x1B, 0x42), QColor(0x2A, 0x1B, 0x46),
             QColor(0x1A, 0x14, 0x30)},
            {QColor(0x2E, 0x7B, 0xC8, 90), QColor(0x6C, 0x4A, 0xD0, 90), QColor(0xB0, 0x4A, 0x86, 70)},
            {QColor(0x8F, 0xB8, 0xFF, 16), QColor(0x6F, 0x5B, 0xE8, 30), QColor(0xE0, 0x7A, 0xB0, 18)}};
}

void drawGlow(QPainter& painter, const QPointF& centre, double radius, const QColor& colour) {
    QRadialGradient glow(centre, radius);
    QColor edge = colour;
    edge.setAlpha(0);
    glow.setColorAt(0, colour);
    glow.setColorAt(1, edge);
    painter.fillRect(QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius), glow);
}

/// A broad wave across the whole width that fades out downwards.
void drawRibbon(QPainter& painter, double width, double top, double swing, const QColor& colour) {
    constexpr double kDepth = 420;
    QPainterPath wave(QPointF(0, top));
    wave.cubicTo(width * 0.30, top - swing, width * 0.42, top + swing * 1.3, width * 0.62, top + swing * 0.35);
    wave.cubicTo(width * 0.78, top - swing * 0.4, width * 0.90, top - swing * 0.6, width, top + swing * 0.2);
    wave.lineTo(width, top + kDepth);
    wave.lineTo(0, top + kDepth);
    wave.closeSubpath();
    QLinearGradient fade(0, top - swing, 0, top + kDepth);
    QColor end = colour;
    end.setAlpha(0);
    fade.setColorAt(0, colour);
    fade.setColorAt(1, end);
    painter.fillPath(wave, fade);
}

/// Grain far below what is seen, which keeps soft gradients from showing steps.
void drawGrain(QPainter& painter, const QSizeF& size) {
    constexpr int kSide = 128;
    constexpr std::uint32_t kStrongest = 5;
    QImage grain(kSide, kSide, QImage::Format_ARGB32_Premultiplied);
    std::uint32_t random = 1;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            random = random * 1664525u + 1013904223u;
            const int alpha = static_cast<int>((random >> 16) % kStrongest);
            const int level = (random >> 28) % 2 == 0 ? 0 : alpha;
            grain.setPixel(x, y, qRgba(level, level, level, alpha));
        }
    }
    painter.save();
    painter.resetTransform();
    painter.fillRect(QRectF(QPointF(), size * 2), QBrush(grain));
    painter.restore();
}

} // namespace

void drawWallpaper(QPainter& painter, const QSizeF& size, Appearance appearance) {
    constexpr double kRepeat = 640;
    const Scheme scheme = schemeOf(appearance);
    QLinearGradient sky(0, 0, size.width() * 0.35, size.height());
    for (std::size_t i = 0; i < scheme.sky.size(); ++i)
        sky.setColorAt(static_cast<double>(i) / (static_cast<double>(scheme.sky.size()) - 1), scheme.sky[i]);
    painter.fillRect(QRectF(QPointF(), size), sky);

    const auto bands = static_cast<std::size_t>(std::ceil(size.height() / kRepeat));
    for (std::size_t band = 0; band < bands; ++band) {
        const double top = static_cast<double>(band) * kRepeat;
        const double side = band % 2 == 0 ? 0.16 : 0.84;
        drawGlow(painter, {size.width() * side, top + 120}, 620, scheme.glows[band % 3]);
        drawGlow(painter, {size.width() * (1 - side), top + 420}, 520, scheme.glows[(band + 1) % 3]);
        drawRibbon(painter, size.width(), top + 210, 130, scheme.ribbons[band % 3]);
        drawRibbon(painter, size.width(), top + 430, -110, scheme.ribbons[(band + 1) % 3]);
    }
    drawGrain(painter, size);
}

} // namespace tavrik::practice
