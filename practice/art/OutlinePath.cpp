#include "practice/art/OutlinePath.h"

#include <cmath>
#include <numbers>

namespace tavrik::practice {
namespace {

constexpr double kSquircleShare = 0.81;
constexpr double kDiscShare = 0.81;
constexpr double kSquareShare = 0.96;
constexpr double kSquareCorner = 0.07;

QRectF centred(double size, double share) {
    const double margin = size * (1 - share) / 2;
    return {margin, margin, size * share, size * share};
}

} // namespace

QPainterPath superellipse(const QRectF& bounds) {
    constexpr double kExponent = 5;
    constexpr int kPoints = 360;
    const auto stretched = [](double part) {
        return std::copysign(std::pow(std::abs(part), 2 / kExponent), part);
    };
    QPainterPath path;
    for (int i = 0; i < kPoints; ++i) {
        const double angle = 2 * std::numbers::pi * i / kPoints;
        const QPointF point(bounds.center().x() + bounds.width() / 2 * stretched(std::cos(angle)),
                            bounds.center().y() + bounds.height() / 2 * stretched(std::sin(angle)));
        if (i == 0)
            path.moveTo(point);
        else
            path.lineTo(point);
    }
    path.closeSubpath();
    return path;
}

QPainterPath outlinePath(Outline outline, double size) {
    QPainterPath path;
    switch (outline) {
    case Outline::squircle:
        return superellipse(centred(size, kSquircleShare));
    case Outline::round:
        path.addEllipse(centred(size, kDiscShare));
        break;
    case Outline::square:
        path.addRoundedRect(centred(size, kSquareShare), size * kSquareCorner, size * kSquareCorner);
        break;
    case Outline::free:
        break;
    }
    return path;
}

} // namespace tavrik::practice
