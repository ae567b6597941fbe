#include "system/IconManager.h"

#include "platform/FileManager.h"
#include "platform/FittedRect.h"
#include "platform/Icns.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/PathComponent.h"
#include "platform/PropertyList.h"
#include "platform/StandardPicture.h"
#include "platform/Workspace.h"

#include <QColorSpace>

#include <algorithm>
#include <array>

namespace tavrik {

namespace {

constexpr int kSquareSide = 1024; ///< pixels
/// Scaled premultiplied, so that the colour of transparent pixels does not bleed into the edges.
constexpr auto kFormat = QImage::Format_ARGB32_Premultiplied;
constexpr std::size_t kLargestInfoPlist = 16u << 20;
constexpr std::size_t kLargestIconFile = 64u << 20;

/// The icon file that the bundle's information dictionary names, without ".icns"; empty when there is none. The
/// dictionary is the application's, so the name is not trusted as a path.
std::string namedIconFile(const FileManager& files, const MacPath& bundle) {
    for (const char* place : {"Contents/Info.plist", "WrappedBundle/Info.plist", "Info.plist"}) {
        const auto data = files.read(bundle / place, kLargestInfoPlist);
        if (!data)
            continue;
        const auto info = plist::parse(*data);
        const auto* value = info ? info->find<std::string>("CFBundleIconFile") : nullptr;
        if (!value)
            return {};
        std::string_view name = *value;
        if (name.ends_with(".icns"))
            name.remove_suffix(5);
        return isSafePathComponent(name) ? std::string(name) : std::string();
    }
    return {};
}

/// An icon file at its largest representation, the first of equals. Null when it does not load.
QImage loadIconFile(ByteView data) {
    // Some applications ship a plain picture under the name of an icon file.
    if (!textOf(data).starts_with("icns"))
        return QImage::fromData(data.data(), static_cast<int>(data.size()));
    const auto representations = icns::representations(data);
    if (representations.empty())
        return QImage();
    const auto largest =
        std::max_element(representations.begin(), representations.end(),
                         [](const auto& left, const auto& right) { return left.width < right.width; });
    return icns::decode(data, *largest);
}

/// Averages areas on the way down and interpolates on the way up. Null when there is no memory for it.
QImage scaledInSRGB(const QImage& picture, QSize size) {
    QImage scaled =
        picture.convertToFormat(kFormat).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (isSRGB(scaled))
        scaled.setColorSpace(QColorSpace::SRgb);
    else
        scaled.convertToColorSpace(QColorSpace::SRgb);
    return scaled;
}

} // namespace

IconManager::IconManager(Mac& mac) : m_mac(mac) {}

QImage IconManager::appIcon(const MacPath& atPath) const {
    const std::array<std::string, 4> names{namedIconFile(m_mac.files, atPath), "icon", "Icon", "app"};
    for (const std::string& name : names) {
        if (name.empty())
            continue;
        for (const char* place : {"Contents/Resources", "WrappedBundle", ""}) {
            const auto data = m_mac.files.read(atPath / place / (name + ".icns"), kLargestIconFile);
            if (!data)
                continue;
            QImage image = loadIconFile(*data);
            if (!image.isNull())
                return image;
            break;
        }
    }
    return m_mac.workspace.icon(atPath);
}

std::optional<QImage> IconManager::squareIcon(const QImage& from) {
    if (from.size() == QSize(kSquareSide, kSquareSide) && from.format() == kFormat && isSRGB(from))
        return from;

    const QRect rect = fittedRect(from.size(), kSquareSide);
    QImage scaled = from.isNull() ? QImage() : scaledInSRGB(from, rect.size());
    if (scaled.size() == QSize(kSquareSide, kSquareSide))
        return scaled;

    QImage square(kSquareSide, kSquareSide, kFormat);
    if (square.isNull() || (scaled.isNull() && !from.isNull())) {
        log("Failed to create bitmap for icon conversion");
        return std::nullopt;
    }
    square.setColorSpace(QColorSpace::SRgb);
    square.fill(Qt::transparent);
    for (int y = 0; y < scaled.height(); ++y)
        std::copy_n(reinterpret_cast<const QRgb*>(scaled.constScanLine(y)), rect.width(),
                    reinterpret_cast<QRgb*>(square.scanLine(rect.top() + y)) + rect.left());
    return square;
}

} // namespace tavrik
