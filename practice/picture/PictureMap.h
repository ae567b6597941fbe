#pragma once

#include "platform/Path.h"

#include <QRectF>

#include <string>
#include <vector>

namespace tavrik::practice {

/// Where something of a picture was drawn.
struct Spot {
    std::string where;    ///< "Page 1", "Folder: Utilities", "Dock"
    std::string title;    ///< as stored, not cut short
    std::string bundleID; ///< empty for a folder or a spacer
    MacPath path;         ///< what its icon was taken of; empty where a question mark was drawn
    QRectF icon;          ///< in pixels of the picture
};

/// Every application, folder and Dock tile of a picture, in the order of drawing.
struct PictureMap {
    std::vector<Spot> spots;
};

} // namespace tavrik::practice
