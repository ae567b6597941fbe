#include "icons/ThumbnailFile.h"

#include "platform/FileManager.h"
#include "platform/FittedRect.h"
#include "platform/Png.h"

#include <cerrno>

namespace tavrik {

namespace {

constexpr std::size_t kLargestThumbnailFile = 1u << 20; // bytes; pixels alone are 68 KB
constexpr auto kFormat = QImage::Format_ARGB32_Premultiplied;

} // namespace

QImage drawThumbnail(const QImage& picture, ThumbnailSize size) {
    if (picture.isNull())
        return QImage();
    const int side = static_cast<int>(size);
    const QRect rect = fittedRect(picture.size(), side);
    QImage scaled =
        picture.convertToFormat(kFormat).scaled(rect.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (scaled.width() == side && scaled.height() == side)
        return scaled;
    // What lies outside the picture is transparent.
    return scaled.copy(QRect(-rect.topLeft(), QSize(side, side)));
}

QImage readThumbnail(const FileManager& files, const MacPath& path, ThumbnailSize size) {
    const int side = static_cast<int>(size);
    const auto data = files.read(path, kLargestThumbnailFile);
    QImage image = data ? png::decode(*data) : QImage();
    return image.size() == QSize(side, side) ? image : QImage();
}

Status writeThumbnail(FileManager& files, const MacPath& path, ByteView data) {
    const auto folder = files.attributes(path.parent(), Links::dontFollow);
    if (!folder)
        return folder.error();
    if (folder->type != FileType::folder)
        return Error{path.parent().string() + ": not a folder", ENOTDIR};
    if (const auto present = files.attributes(path, Links::dontFollow)) {
        if (present->type == FileType::folder)
            return Error{path.string() + ": is a folder", EISDIR};
        if (Status removed = files.remove(path); !removed)
            return removed;
    }
    return files.create(path, data);
}

} // namespace tavrik
