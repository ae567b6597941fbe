#pragma once

#include "platform/Path.h"

#include <QImage>

namespace tavrik {
class FileManager;
}

namespace tavrik::practice {

/// The icon that a bundle brings along: the file that its Info.plist names, with or without its extension, in
/// Contents/Resources, or beside the Info.plist of a flat iOS bundle inside its wrapper, where the largest of
/// the loose pictures is taken. Null when there is none that can be read, such as one that is only in a
/// compiled asset catalogue. Any thread; blocks on the disk.
QImage bundleIcon(const FileManager& files, const MacPath& bundle);

} // namespace tavrik::practice
