#include "bench/IconFolders.h"

#include "icons/ThumbnailFile.h"
#include "platform/FileManager.h"
#include "platform/Png.h"

namespace tavrik::bench {

std::vector<MacPath> Icons::fill(const std::string& bundleID, int count, const QImage& picture) {
    const MacPath folder = store.iconCacheURL() / bundleID;
    const Bytes icon = *png::encode(picture);
    const Bytes small = *png::encode(drawThumbnail(picture, ThumbnailSize::x1));
    const Bytes large = *png::encode(drawThumbnail(picture, ThumbnailSize::x2));
    bool done = bool(files.createFolder(folder));
    std::vector<MacPath> paths;
    for (int index = 0; index < count; ++index) {
        const MacPath path = folder / iconFileName(index);
        done = done && files.create(path, icon) &&
               files.create(thumbnailPath(path, ThumbnailSize::x1), small) &&
               files.create(thumbnailPath(path, ThumbnailSize::x2), large);
        paths.push_back(path);
    }
    if (!done)
        std::abort();
    return paths;
}

} // namespace tavrik::bench
