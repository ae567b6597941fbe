#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>

namespace tavrik::practice {

/// Draws the shadow of what is in a picture that lies in a rectangle of the painter: its transparency, blurred
/// by about `blur` of its pixels, in one colour whose alpha is the shadow's strength.
void drawSoftShadow(QPainter& painter, const QRectF& place, const QImage& picture, double blur,
                    const QColor& colour);

} // namespace tavrik::practice
