#pragma once

#include <QRect>
#include <QSize>

#include <algorithm>
#include <cmath>

namespace tavrik {

/// Where a picture is drawn in a square of that side, in pixels: as large as fits, in its proportions, centred,
/// an odd remainder to the right and the bottom. The whole square for an empty picture. Pure; any thread.
inline QRect fittedRect(QSize picture, int side) {
    if (picture.isEmpty())
        return {0, 0, side, side};
    const double scale = std::min(double(side) / picture.width(), double(side) / picture.height());
    const auto fitted = [=](int length) {
        return std::clamp(static_cast<int>(std::lround(length * scale)), 1, side);
    };
    const int width = fitted(picture.width());
    const int height = fitted(picture.height());
    return {(side - width) / 2, (side - height) / 2, width, height};
}

} // namespace tavrik
