#include "practice/furnish/ProgramIcon.h"

#include <QColor>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QTransform>

#include <cmath>
#include <initializer_list>
#include <numbers>
#include <utility>

namespace tavrik::practice {

namespace {

/// Everything is drawn on a canvas of 1024 units.
constexpr double kCanvas = 1024;

/// A square with smoothly bent sides around a centre.
QPainterPath tile(QPointF centre, double halfWidth) {
    constexpr int kPoints = 240;
    constexpr double kBend = 5; // exponent of the superellipse
    QPainterPath path;
    for (int point = 0; point < kPoints; ++point) {
        const double angle = 2 * std::numbers::pi * point / kPoints;
        const auto bent = [&](double part) {
            return std::copysign(std::pow(std::abs(part), 2 / kBend), part) * halfWidth;
        };
        const QPointF corner = centre + QPointF(bent(std::cos(angle)), bent(std::sin(angle)));
        if (point == 0)
            path.moveTo(corner);
        else
            path.lineTo(corner);
    }
    path.closeSubpath();
    return path;
}

QLinearGradient along(QPointF from, QPointF to, std::initializer_list<std::pair<double, QColor>> stops) {
    QLinearGradient gradient(from, to);
    for (const auto& [position, colour] : stops)
        gradient.setColorAt(position, colour);
    return gradient;
}

/// The fold runs along x + y = kFold; what lies beyond it is turned over.
constexpr double kFold = 1180;

QPainterPath beyondFold() {
    QPainterPath path(QPointF(kCanvas, kFold - kCanvas));
    path.lineTo(kCanvas, kCanvas);
    path.lineTo(kFold - kCanvas, kCanvas);
    path.closeSubpath();
    return path;
}

/// Mirrors at the fold.
QTransform turnedOver() {
    return QTransform(0, -1, -1, 0, kFold, kFold);
}

} // namespace

QImage drawProgramIcon(int size) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / kCanvas, size / kCanvas);
    painter.setPen(Qt::NoPen);

    const QPainterPath ground = tile({512, 512}, 412);
    painter.fillPath(ground,
                     along({200, 140}, {830, 890}, {{0, QColor(58, 46, 122)}, {1, QColor(24, 18, 60)}}));
    painter.setClipPath(ground);
    QRadialGradient glow(320, 220, 620);
    glow.setColorAt(0, QColor(150, 130, 255, 110));
    glow.setColorAt(1, QColor(150, 130, 255, 0));
    painter.fillPath(ground, glow);

    const QPainterPath sheet = tile({512, 512}, 268);
    painter.fillPath(sheet.translated(0, 20), QColor(8, 4, 30, 90));
    painter.fillPath(sheet, along({440, 780}, {780, 440},
                                  {{0, QColor(255, 190, 84)},
                                   {0.4, QColor(255, 98, 96)},
                                   {0.7, QColor(226, 62, 150)},
                                   {1, QColor(126, 70, 230)}}));

    const QPainterPath plain = sheet.subtracted(beyondFold());
    painter.fillPath(plain, along({260, 260}, {620, 620}, {{0, Qt::white}, {1, QColor(220, 224, 238)}}));

    const QPainterPath corner = turnedOver().map(sheet.intersected(beyondFold()));
    painter.setClipPath(plain);
    painter.fillPath(corner.translated(-10, -10), QColor(50, 40, 110, 40));
    painter.setClipPath(ground);
    painter.fillPath(corner, along({440, 440}, {kFold / 2, kFold / 2},
                                   {{0, QColor(214, 218, 234)}, {0.6, Qt::white}, {1, QColor(196, 200, 222)}}));
    return image;
}

} // namespace tavrik::practice
