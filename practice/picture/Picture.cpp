#include "practice/picture/Picture.h"

#include "platform/PathRules.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PracticeFileManager.h"
#include "practice/picture/DockDrawing.h"
#include "practice/picture/DockLayout.h"
#include "practice/picture/Easel.h"
#include "practice/picture/LaunchpadDrawing.h"
#include "practice/picture/LaunchpadLayout.h"
#include "practice/picture/Look.h"
#include "practice/picture/Wallpaper.h"

#include <QPainter>

#include <cmath>

namespace tavrik::practice {

namespace {

constexpr double kWidth = 1280;
constexpr double kTop = 36;
constexpr double kBottom = 44;
constexpr double kBetween = 12;
constexpr std::size_t kMostPages = 12;
constexpr std::size_t kMostFolders = 24;

} // namespace

Result<QImage> drawPicture(const HostPath& root, const PictureOptions& options) {
    PictureMap map;
    return drawPicture(root, options, map);
}

Result<QImage> drawPicture(const HostPath& root, const PictureOptions& options, PictureMap& map) {
    const PracticeFileManager files(root);
    const auto database = files.hostPath(launchpadDatabasePath(kTemporaryFolder), Links::follow);
    if (!database)
        return database.error();
    const auto launchpad = readLaunchpadLayout(files, *database, kMostPages);
    if (!launchpad)
        return launchpad.error();
    const auto dock = readDockLayout(files, dockPreferencesPath(kHome));
    if (!dock)
        return dock.error();

    const PagesDrawing pages(*launchpad, kWidth);
    const FoldersDrawing folders(*launchpad, kWidth, kMostFolders);
    const DockDrawing bar(*dock, kWidth);
    const double height =
        std::ceil(kTop + pages.height() + kBetween + folders.height() + kBetween + bar.height() + kBottom);

    const double scale = options.scale >= 1.5 ? 2 : 1;
    QImage picture(static_cast<int>(kWidth * scale), static_cast<int>(height * scale), QImage::Format_RGB32);
    if (picture.isNull())
        return Error{"There is not enough memory for the picture."};
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform |
                           QPainter::TextAntialiasing);
    painter.scale(scale, scale);
    drawWallpaper(painter, {kWidth, height}, options.appearance);

    const Look look(options.appearance);
    IconSource icons(files);
    map.spots.clear();
    Easel easel(painter, look, icons, map, scale);
    pages.draw(easel, kTop);
    folders.draw(easel, kTop + pages.height() + kBetween);
    bar.draw(easel, kTop + pages.height() + kBetween + folders.height() + kBetween);
    return picture;
}

} // namespace tavrik::practice
