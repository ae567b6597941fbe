#pragma once

#include <QImage>

namespace tavrik {

/// The side at which an outline is looked at, in pixels; a larger picture is scaled down to it.
inline constexpr int kSquircleTestSide = 128;

/// Whether a picture has the standard rounded-square outline: opaque within a superellipse of exponent 4, and
/// hardly so outside. False for a null picture and for one that is no square. Pure; any thread.
bool isSquircle(const QImage& picture);

} // namespace tavrik
