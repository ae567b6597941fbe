#pragma once

#include "platform/Path.h"
#include "platform/Result.h"
#include "practice/picture/PictureMap.h"

#include <QImage>

namespace tavrik::practice {

enum class Appearance { light, dark };

struct PictureOptions {
    double scale = 1; ///< pixels per point: 1 or 2
    Appearance appearance = Appearance::light;
};

/// What a person would see: every page of Launchpad, every folder opened, and the Dock, in one picture, drawn
/// from the volume's stores alone (database, preferences, bookmarks, bundles, custom icons, titles). Works on
/// stores copied from a real Mac; what cannot be resolved is a question mark. Of a very large Launchpad the
/// first pages and folders are drawn, and the rest is counted in a line. An error, in a sentence, when a store
/// cannot be read at all. Needs the application object of Qt Gui, for fonts. Writes nothing into the volume.
Result<QImage> drawPicture(const HostPath& root, const PictureOptions& options = {});

/// The same, and tells where each thing was drawn.
Result<QImage> drawPicture(const HostPath& root, const PictureOptions& options, PictureMap& map);

} // namespace tavrik::practice
