#pragma once

#include <QImage>

namespace tavrik::practice {

/// The program's icon: a plain tile whose corner turns over and shows the colours beneath. 16 to 1024 pixels,
/// ARGB32 premultiplied. Pure; any thread.
QImage drawProgramIcon(int size);

} // namespace tavrik::practice
