#pragma once

#include <QImage>

namespace tavrik::practice {

/// The program's icon: a plain tile whose corner turns over and shows the colours beneath, on the plate that
/// icons of a Mac stand on. `size` in pixels, 16 to 1024; `points` is the size at which it is shown, half of
/// `size` on a display of two pixels a point. Up to 32 points it is drawn with larger shapes and without
/// shadows. ARGB32 premultiplied. Pure; any thread.
QImage drawProgramIcon(int size, int points);

} // namespace tavrik::practice
