#pragma once

#include "practice/art/IconArtist.h"

#include <QPainterPath>

namespace tavrik::practice {

/// The plate of an icon on a canvas of this size: a superellipse of four fifths of the canvas, a disc of as
/// much, or a square that nearly fills it. Empty for a free icon, which has no plate.
QPainterPath outlinePath(Outline outline, double size);

/// A superellipse of exponent 5 that fills a rectangle: the continuous corners of a modern icon.
QPainterPath superellipse(const QRectF& bounds);

} // namespace tavrik::practice
