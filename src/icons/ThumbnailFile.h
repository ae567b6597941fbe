#pragma once

#include "icons/IconFiles.h"
#include "platform/Bytes.h"
#include "platform/Result.h"

#include <QImage>

namespace tavrik {

class FileManager;

/// The picture fitted and centred in a transparent square of that size; an odd remainder goes to the right and
/// the bottom. Null for a null picture, or when there is no memory. Pure; any thread.
QImage drawThumbnail(const QImage& picture, ThumbnailSize size);

/// A thumbnail's file; null when it is missing, damaged or of another size.
QImage readThumbnail(const FileManager& files, const MacPath& path, ThumbnailSize size);

/// Puts a thumbnail's file in the place of an earlier one, without waiting for the disk. A link at its path is
/// removed and not followed; a folder there, and a link in the place of its folder, are errors. A failure or a
/// kill leaves none, or one that is cut and counts as missing.
Status writeThumbnail(FileManager& files, const MacPath& path, ByteView data);

} // namespace tavrik
