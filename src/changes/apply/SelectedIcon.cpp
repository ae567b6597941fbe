#include "changes/apply/SelectedIcon.h"

#include "changes/apply/ApplyServices.h"
#include "icons/IconCache.h"
#include "icons/IconFiles.h"
#include "icons/IconStore.h"
#include "icons/ImageIntake.h"
#include "model/SettingsManager.h"
#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "system/IconManager.h"
#include "themes/ThemeManager.h"

#include <algorithm>
#include <cstddef>

namespace tavrik {

std::optional<MacPath> selectedIconFile(const ApplyServices& with, const std::string& bundleID) {
    const auto selected = with.settings.getSelectedIcon(bundleID);
    if (!selected || *selected < 0)
        return std::nullopt;
    const auto icons = with.icons.listIcons(bundleID);
    const auto icon =
        std::ranges::find_if(icons, [&](const MacPath& path) { return iconIndex(path.name()) == *selected; });
    if (icon != icons.end())
        return *icon;
    // The icons of themes are numbered on from the application's own.
    const auto offered = with.themes.themeIconsFor(bundleID);
    const std::size_t behind = static_cast<std::size_t>(*selected) - icons.size();
    return static_cast<std::size_t>(*selected) >= icons.size() && behind < offered.size()
               ? std::optional(offered[behind])
               : std::nullopt;
}

QImage readThemeIcon(const ApplyServices& with, const MacPath& file) {
    const auto content = with.mac.files.read(file);
    const auto picture = content ? readPicture(*content, file.name()) : Result<QImage>(content.error());
    return picture ? IconManager::squareIcon(*picture).value_or(QImage()) : QImage();
}

QImage selectedIconOf(const ApplyServices& with, const std::string& bundleID) {
    const auto file = selectedIconFile(with, bundleID);
    if (!file)
        return {};
    return file->isInside(with.icons.iconCacheURL()) ? with.iconCache.loadImage(*file)
                                                     : readThemeIcon(with, *file);
}

} // namespace tavrik
