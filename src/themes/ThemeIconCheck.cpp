#include "themes/ThemeIconCheck.h"

#include "icons/ImageIntake.h"
#include "icons/PictureFormat.h"
#include "platform/Png.h"
#include "themes/ThemeFile.h"
#include "themes/ThemeLibrary.h"

#include <QString>

#include <algorithm>

namespace tavrik {

namespace {

constexpr std::uint64_t kIcnsPixels = 1024 * 1024;

bool isUnseen(char32_t point) {
    const auto category = QChar::category(point);
    return category == QChar::Other_Format || category == QChar::Other_Control ||
           category == QChar::Separator_Line || category == QChar::Separator_Paragraph;
}

} // namespace

bool isPortableIconName(const std::string& fileName) {
    return bundleIDOfIcon(fileName) && fileName.find_first_of("\\:") == std::string::npos &&
           std::ranges::none_of(QString::fromStdString(fileName).toStdU32String(), isUnseen);
}

std::string fileNameKey(std::string_view name) {
    // By way of capitals, because Qt spells letters out ("ß" as "SS") only on that way.
    const QString folded = QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()))
                               .normalized(QString::NormalizationForm_D)
                               .toUpper()
                               .toCaseFolded();
    return folded.normalized(QString::NormalizationForm_D).toStdString();
}

std::uint64_t statedPixels(ByteView icon) {
    const auto extent = png::extent(icon);
    if (!extent)
        return kIcnsPixels;
    return static_cast<std::uint64_t>(extent->size.width()) * static_cast<std::uint64_t>(extent->size.height());
}

Status checkThemeIcon(const std::string& fileName, ByteView content) {
    const bool isPNG = fileName.ends_with(".png");
    if (content.size() > kLargestThemeIcon)
        return Error{"“" + fileName + "” is larger than " + std::to_string(kLargestThemeIcon >> 20) + " MB"};
    if (pictureFormat(content) != (isPNG ? PictureFormat::png : PictureFormat::icns))
        return Error{"“" + fileName + "” is no " + (isPNG ? "PNG" : "ICNS") + " picture"};
    const auto extent = png::extent(content);
    if (extent && std::max(extent->size.width(), extent->size.height()) > kLargestThemeIconSide)
        return Error{"“" + fileName + "” is " + std::to_string(extent->size.width()) + " by " +
                     std::to_string(extent->size.height()) + " pixels; " +
                     std::to_string(kLargestThemeIconSide) + " a side is the most that is taken in"};
    const auto picture = readPicture(content, fileName);
    if (!picture)
        return picture.error();
    return Done{};
}

} // namespace tavrik
