#pragma once

#include <QImage>

namespace tavrik::bench {

/// An icon as people draw them: a rounded square with a gradient, a soft shadow, flat figures and thin lines on
/// a transparent ground.
QImage drawnPicture(int side);

/// What a camera makes of a scene: no two pixels alike, soft over long distances and grainy over short ones;
/// opaque.
QImage photoLikePicture(int side);

} // namespace tavrik::bench
