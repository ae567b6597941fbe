#pragma once

#include <QImage>

namespace tavrik {

/// The standard outline of an icon: a superellipse of exponent 4 about the middle of a square of `size` pixels,
/// its half axis 0.85 of half the size. True when the middle of the pixel (x, y), both from 0, lies within it.
bool isInsideSquircle(int x, int y, int size);

/// The picture cut to the standard outline, with a soft edge one pixel wide. Pure; any thread. A picture that
/// is not square passes unchanged.
QImage maskedToSquircle(const QImage& picture);

} // namespace tavrik
