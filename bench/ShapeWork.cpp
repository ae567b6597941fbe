// The analysis of icon shapes, as whole processes.
//   shape_work make FOLDER COUNT single|all  applications on a practice Mac, each with an icon file of its own:
//   of
//                                            1024 pixels alone, or of all sizes
//   shape_work analyse FOLDER                looks at all of them, nothing remembered; prints how many have the
//                                            standard outline
//   shape_work again FOLDER                  the same with everything remembered
//   shape_work qt FOLDER                     the same as the first by Qt's decoder and scaling, on one thread

#include "bench/SamplePictures.h"
#include "icons/IconShapeAnalysis.h"
#include "icons/SquircleTest.h"
#include "model/SettingsManager.h"
#include "platform/FileManager.h"
#include "platform/Icns.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/OnAllCores.h"
#include "platform/Png.h"
#include "platform/Threads.h"
#include "platform/Volume.h"
#include "platform/practice/PracticeMac.h"
#include "practice/furnish/Furnish.h"
#include "system/IconManager.h"

#include <QCoreApplication>
#include <QImageReader>
#include <QPainter>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace tavrik::bench {
namespace {

const MacPath kApplications("/Applications/Shapes");

/// Three kinds of outline, one icon of ten like a photo, and no two alike.
QImage iconOf(std::size_t number, const QImage& drawn, const QImage& photo) {
    QImage icon(drawn.size(), QImage::Format_ARGB32_Premultiplied);
    icon.fill(number % 3 == 1 ? Qt::darkCyan : Qt::transparent);
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    if (number % 3 != 2)
        painter.drawImage(0, 0, drawn);
    const QRect middle = icon.rect().adjusted(128, 128, -128, -128);
    if (number % 10 == 9)
        painter.drawImage(middle, photo, middle);
    painter.setBrush(
        QColor::fromHsv(static_cast<int>(number * 7 % 360), 200, 160 + static_cast<int>(number % 90)));
    painter.drawEllipse(number % 3 == 2 ? icon.rect() : middle.adjusted(0, 300, 0, -300));
    return icon;
}

Bytes ofOneSize(const QImage& picture) {
    const Bytes coded = *png::encode(picture);
    Bytes container;
    const auto append = [&](std::string_view type, std::size_t size) {
        container.insert(container.end(), type.begin(), type.end());
        for (const int shift : {24, 16, 8, 0})
            container.push_back(static_cast<std::uint8_t>(size >> shift));
    };
    append("icns", 16 + coded.size());
    append("ic10", 8 + coded.size());
    container.insert(container.end(), coded.begin(), coded.end());
    return container;
}

int make(const HostPath& root, std::size_t count, bool ofAllSizes) {
    if (!practice::furnish(root, {}, {.largestIcon = 16}))
        return 1;
    practice::PracticeMac practice(root);
    FileManager& files = practice.mac().files;
    const QImage drawn = drawnPicture(1024);
    const QImage photo = photoLikePicture(1024);
    return onAllCores(count,
                      [&](std::size_t number) -> Status {
                          const MacPath folder =
                              kApplications / (std::to_string(number) + ".app") / "Contents/Resources";
                          const QImage icon = iconOf(number, drawn, photo);
                          if (auto made = files.createFolder(folder); !made)
                              return made;
                          return files.create(folder / "icon.icns",
                                              ofAllSizes ? icns::encode(icon) : ofOneSize(icon));
                      })
               ? 0
               : 1;
}

std::vector<MacPath> applications(const FileManager& files) {
    std::vector<MacPath> paths;
    const auto names = files.list(kApplications);
    for (const std::string& name : *names)
        paths.push_back(kApplications / name);
    return paths;
}

int analyse(Mac& mac, bool isRemembered) {
    const IconManager icons(mac);
    SettingsManager settings(mac);
    IconShapeAnalysis analysis(icons, settings);
    if (!isRemembered)
        settings.clearIconShapeCache();
    const std::vector<MacPath> apps = applications(mac.files);
    analysis.analyse(apps, qApp, {}, [] { QCoreApplication::quit(); });
    QCoreApplication::exec();
    std::printf("%td\n", std::ranges::count_if(apps, [&](auto& app) { return *analysis.isSquircle(app); }));
    return 0;
}

int analyseByQt(Mac& mac) {
    const std::vector<MacPath> apps = applications(mac.files);
    std::printf("%td\n", std::ranges::count_if(apps, [&](const MacPath& app) {
                    const HostPath file = mac.volume.hostPath(app / "Contents/Resources/icon.icns");
                    QImageReader reader(QString::fromStdString(file.string()), "icns");
                    while (reader.jumpToNextImage()) { // to the last, which is the largest
                    }
                    return isSquircle(reader.read());
                }));
    return 0;
}

} // namespace
} // namespace tavrik::bench

int main(int count, char** arguments) {
    using namespace tavrik;
    setLogStream(nullptr);
    declareMainThread();
    const QCoreApplication application(count, arguments);
    const std::string_view action = count > 1 ? arguments[1] : "";
    if (action == "make" && count == 5)
        return bench::make(HostPath(arguments[2]), std::strtoul(arguments[3], nullptr, 10),
                           arguments[4] == std::string_view("all"));
    if (count != 3)
        return 2;
    practice::PracticeMac practice{HostPath(arguments[2])};
    if (action == "analyse" || action == "again")
        return bench::analyse(practice.mac(), action == "again");
    return action == "qt" ? bench::analyseByQt(practice.mac()) : 2;
}
