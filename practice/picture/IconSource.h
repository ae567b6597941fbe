#pragma once

#include "platform/FileManager.h"
#include "platform/Path.h"

#include <QImage>

#include <map>

namespace tavrik::practice {

/// Icons of a volume's paths at the sizes a picture needs, each read once. Not for several threads.
class IconSource {
public:
    explicit IconSource(const FileManager& files);

    // All are square, ARGB32 premultiplied, of this size in pixels, and a question mark for an empty path.

    /// The custom icon, else the bundle's, else that of an application without any.
    QImage application(const MacPath& path, int size);

    /// The custom icon, else a folder's.
    QImage folder(const MacPath& path, int size);

    /// The custom icon, else a sheet of paper.
    QImage document(const MacPath& path, int size);

    QImage trash(int size);

private:
    QImage own(const MacPath& path, int size);

    const FileManager& m_files;
    std::map<MacPath, QImage> m_originals; ///< null for a path without an icon of its own
};

} // namespace tavrik::practice
