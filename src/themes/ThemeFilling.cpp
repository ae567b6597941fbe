#include "changes/PendingChangesManager.h"
#include "icons/IconFiles.h"
#include "icons/IconStore.h"
#include "icons/ImageIntake.h"
#include "model/SettingsManager.h"
#include "model/catalogue/AppManager.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/MainQueue.h"
#include "platform/Png.h"
#include "platform/Threads.h"
#include "system/IconManager.h"
#include "themes/ThemeFile.h"
#include "themes/ThemeManager.h"

#include <algorithm>
#include <cerrno>

namespace tavrik {

namespace {

/// A picture file of ours as PNG: as it stands when it is one.
Result<Bytes> pngOf(const FileManager& files, const MacPath& path) {
    const auto present = files.attributes(path, Links::dontFollow);
    if (!present)
        return present.error();
    if (present->type != FileType::file)
        return Error{path.string() + " is no plain file", EINVAL};
    auto content = files.read(path, kLargestThemeIcon);
    if (!content || !png::decode(*content).isNull())
        return content;
    const auto picture = readPicture(*content, path.name());
    return picture ? png::encode(*picture) : picture.error();
}

} // namespace

std::size_t ThemeManager::moveSelectedIcons(const Theme& to) {
    log("Moving selected icons to theme: " + to.name + " (ID: " + to.themeID + ")");
    std::size_t count = 0;
    for (const ApplicationInfo& app : m_apps.loadApplications()) {
        const auto selected = m_settings.getSelectedIcon(app.bundleID);
        if (!selected)
            continue;
        const auto icons = m_icons.listIcons(app.bundleID);
        const auto icon = std::ranges::find_if(
            icons, [&](const MacPath& path) { return iconIndex(path.name()) == *selected; });
        if (icon == icons.end())
            continue;
        const auto png = pngOf(m_mac.files, *icon);
        if (putIcon(png, app.bundleID, to)) {
            log("Moved selected icon for " + app.bundleID);
            ++count;
        }
    }
    loadThemes();
    log("Icon move complete. Moved " + std::to_string(count) + " icons.");
    return count;
}

Status ThemeManager::addIcon(const QImage& image, const std::string& bundleID, const Theme& to) {
    assertOffMainThread("Adding an icon to a theme");
    const auto square = image.isNull() ? std::nullopt : IconManager::squareIcon(image);
    return putIcon(square ? png::encode(*square) : Error{"the picture could not be made into an icon", EINVAL},
                   bundleID, to);
}

Status ThemeManager::putIcon(const Result<Bytes>& png, const std::string& bundleID, const Theme& to) {
    const auto failed = [](const Error& error) {
        log("Failed to save icon to theme: " + error.description);
        return error;
    };
    if (!png)
        return failed(png.error());
    // A deletion that is staged means the icon of before. It is taken back first: a kill in between leaves that
    // icon, and not a new one that the next apply deletes.
    MainQueue::sync([&] { m_pendingChanges.keepThemeIcon(to.themeID, bundleID + ".png"); });
    const Status written = m_library.writeIcon(to.themeID, bundleID, *png);
    return written ? written : failed(written.error());
}

} // namespace tavrik
