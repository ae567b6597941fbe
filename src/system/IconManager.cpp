#include "system/IconManager.h"

#include "platform/FileManager.h"
#include "platform/FittedRect.h"
#include "platform/Icns.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/Png.h"
#include "platform/StandardPicture.h"
#include "platform/Workspace.h"
#include "system/AppIconFiles.h"

#include <QColorSpace>

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

namespace tavrik {

namespace {

constexpr int kSquareSide = 1024; ///< pixels
/// Scaled premultiplied, so that the colour of transparent pixels does not bleed into the edges.
constexpr auto kFormat = QImage::Format_ARGB32_Premultiplied;
constexpr std::size_t kLargestIconFile = 64u << 20;
constexpr const char* kCustomIconFile = "Icon\r"; ///< in every folder and bundle that has a custom icon

/// The representations worth decoding, in this order: those of at least so many pixels a side from the
/// smallest, or else the largest alone, the first of equals.
std::vector<icns::Representation> fitting(std::vector<icns::Representation> offered, int atLeast) {
    const auto side = [](const icns::Representation& each) { return std::min(each.width, each.height); };
    std::ranges::stable_sort(offered, {}, side);
    const auto enough = std::ranges::lower_bound(offered, atLeast, {}, side);
    if (enough != offered.end())
        return {enough, offered.end()};
    if (offered.empty())
        return {};
    return {*std::ranges::lower_bound(offered, side(offered.back()), {}, side)};
}

/// Null when the file does not load.
QImage loadIconFile(ByteView data, int atLeast) {
    // Some applications ship a plain picture under the name of an icon file.
    if (!textOf(data).starts_with("icns"))
        return QImage::fromData(data.data(), static_cast<int>(data.size()));
    for (const auto& representation : fitting(icns::representations(data), atLeast)) {
        QImage image = icns::decode(data, representation);
        if (!image.isNull())
            return image;
    }
    return QImage();
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
    return appIcon(atPath, std::numeric_limits<int>::max());
}

QImage IconManager::appIcon(const MacPath& atPath, int atLeast) const {
    AppIconFiles candidates(m_mac.files, atPath);
    while (const auto file = candidates.next()) {
        const auto data = m_mac.files.read(file->path, kLargestIconFile);
        QImage image = data ? loadIconFile(*data, atLeast) : QImage();
        if (!image.isNull())
            return image;
    }
    return m_mac.workspace.icon(atPath);
}

QImage IconManager::shownIcon(const MacPath& atPath, int atLeast) const {
    // The workspace decodes an icon at its largest size.
    return m_mac.files.exists(atPath / kCustomIconFile) ? m_mac.workspace.icon(atPath)
                                                        : appIcon(atPath, atLeast);
}

IconManager::IconData IconManager::appIconData(const MacPath& atPath, std::size_t beginningBytes) const {
    AppIconFiles candidates(m_mac.files, atPath);
    while (const auto file = candidates.next()) {
        auto beginning = m_mac.files.readBeginning(file->path, std::max(beginningBytes, kIconFileHeader));
        if (!beginning || file->size > kLargestIconFile || !mayBeIconFile(*beginning, file->size))
            continue;
        beginning->resize(std::min(beginning->size(), beginningBytes));
        return {file->size, std::move(*beginning)};
    }
    const auto coded = png::encode(m_mac.workspace.icon(atPath));
    if (!coded)
        return {};
    const ByteView beginning = ByteView(*coded).first(std::min(beginningBytes, coded->size()));
    return {coded->size(), Bytes(beginning.begin(), beginning.end())};
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
