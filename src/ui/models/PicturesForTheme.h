#pragma once

#include "model/ApplicationInfo.h"
#include "themes/Theme.h"

#include <QList>
#include <QStringList>
#include <QUrl>

#include <cstddef>
#include <string>
#include <vector>

namespace tavrik {

struct Managers;

/// Pictures of the host that a person let go on a theme.
struct PicturesForTheme {
    Theme theme;
    QList<QUrl> files;
    std::string bundleID; ///< of the tile that they were let go on; empty elsewhere
};

/// What became of them: a sentence for each that could not be taken.
struct DropAnswer {
    std::size_t added = 0;
    QStringList refused;
};

/// Writes them into the theme: the only one that was let go on a tile for that application, others for those
/// that their names tell without doubt. Blocks on the disk and decodes; off the main thread.
DropAnswer takePictures(const PicturesForTheme& dropped, const std::vector<ApplicationInfo>& apps,
                        Managers& managers);

} // namespace tavrik
