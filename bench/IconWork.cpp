// What the program does with icons, each as a whole process.
//   icon_work make FOLDER                         a practice Mac
//   icon_work picture drawn|photo|icon SIDE FILE  a PNG to begin with, by Qt; an icon by us
//   icon_work drop FOLDER IDENTIFIER FILE         takes the picture in: icon and both thumbnails saved; prints
//   the icon's bytes icon_work qt FILE OUT                         the same by Qt with its default writer, into
//   a folder of the host icon_work walk FOLDER APPLICATIONS ICONS      looks at that many icons and thumbnails;
//   prints the growth of memory in KiB

#include "bench/IconFolders.h"
#include "bench/PeakMemory.h"
#include "bench/SamplePictures.h"
#include "icons/ImageIntake.h"
#include "platform/FileManager.h"
#include "platform/Png.h"
#include "practice/furnish/Furnish.h"
#include "system/IconManager.h"

#include <QPainter>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string_view>

namespace tavrik::bench {
namespace {

int make(const HostPath& folder) {
    return practice::furnish(folder, {}) ? 0 : 1;
}

int picture(std::string_view kind, int side, const char* file) {
    const QImage drawn = kind == "photo" ? photoLikePicture(side) : drawnPicture(side);
    if (kind == "icon") {
        const auto coded = png::encode(drawn);
        std::ofstream stream(file, std::ios::binary);
        return coded && stream.write(reinterpret_cast<const char*>(coded->data()), std::ssize(*coded)) ? 0 : 1;
    }
    return drawn.save(QString::fromUtf8(file), "png") ? 0 : 1;
}

int drop(const HostPath& folder, const std::string& bundleID, const char* file) {
    Icons icons(folder);
    std::ifstream stream(file, std::ios::binary);
    const Bytes content(std::istreambuf_iterator<char>(stream), {});
    const auto read = readPicture(content, file);
    const auto square = read ? IconManager::squareIcon(*read) : std::nullopt;
    const auto path = square ? icons.store.savePendingIcon(*square, bundleID) : std::nullopt;
    if (!path)
        return 1;
    icons.cache.generateThumbnails(*path);
    icons.cache.waitForThumbnails();
    const auto saved = icons.files.attributes(*path);
    const bool hasThumbnail = icons.files.exists(thumbnailPath(*path, ThumbnailSize::x2));
    if (!saved || !hasThumbnail)
        return 1;
    std::printf("%llu\n", static_cast<unsigned long long>(saved->size));
    return 0;
}

int dropByQt(const char* file, const std::string& out) {
    const QImage read(QString::fromUtf8(file));
    const auto fitted = [](const QImage& image, int side) {
        return image.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    };
    const QImage scaled = fitted(read.convertToFormat(QImage::Format_ARGB32_Premultiplied), 1024);
    QImage icon(1024, 1024, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.drawImage((1024 - scaled.width()) / 2, (1024 - scaled.height()) / 2, scaled);
    painter.end();
    const QImage large = fitted(icon, 130);
    const QImage small = fitted(large, 65);
    const auto save = [&](const QImage& image, const char* name) {
        return image.save(QString::fromStdString(out + name), "png");
    };
    return save(icon, "/icon.png") && save(large, "/large.png") && save(small, "/small.png") ? 0 : 1;
}

int walk(const HostPath& folder, int applications, int perApplication) {
    Icons icons(folder);
    const MacPath base = icons.store.iconCacheURL();
    const auto bundleID = [](int application) { return "com.example.walk" + std::to_string(application); };
    if (!icons.files.exists(base / bundleID(applications - 1)))
        for (int application = 0; application < applications; ++application)
            icons.fill(bundleID(application), perApplication, drawnPicture(1024));
    const long before = peakMemory();
    for (int application = 0; application < applications; ++application) {
        for (const MacPath& icon : icons.store.listIcons(bundleID(application))) {
            if (icons.cache.loadImage(icon).isNull() ||
                icons.cache.thumbnail(icon, ThumbnailSize::x1).isNull() ||
                icons.cache.thumbnail(icon, ThumbnailSize::x2).isNull())
                return 1;
        }
    }
    std::printf("%ld\n", peakMemory() - before);
    return 0;
}

} // namespace
} // namespace tavrik::bench

int main(int count, char** arguments) {
    using namespace tavrik;
    const std::string_view action = count > 1 ? arguments[1] : "";
    if (action == "make" && count == 3)
        return bench::make(HostPath(arguments[2]));
    if (action == "picture" && count == 5)
        return bench::picture(arguments[2], std::atoi(arguments[3]), arguments[4]);
    if (action == "drop" && count == 5)
        return bench::drop(HostPath(arguments[2]), arguments[3], arguments[4]);
    if (action == "qt" && count == 4)
        return bench::dropByQt(arguments[2], arguments[3]);
    if (action == "walk" && count == 5)
        return bench::walk(HostPath(arguments[2]), std::atoi(arguments[3]), std::atoi(arguments[4]));
    return 2;
}
