#pragma once

#include <QColor>
#include <QImage>

namespace tavrik::practice {

/// The shadow of what is drawn in a picture: its transparency, blurred by about `blur` pixels, in one colour
/// whose alpha is the shadow's strength. As large as the picture.
QImage softShadow(const QImage& picture, double blur, const QColor& colour);

} // namespace tavrik::practice
