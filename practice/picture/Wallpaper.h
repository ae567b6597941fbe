#pragma once

#include "practice/picture/Picture.h"

#include <QPainter>
#include <QSizeF>

namespace tavrik::practice {

/// Fills the picture with a calm sky and soft hills that return every few hundred points, so that tall and
/// short pictures look alike.
void drawWallpaper(QPainter& painter, const QSizeF& size, Appearance appearance);

} // namespace tavrik::practice
