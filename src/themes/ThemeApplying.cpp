#include "changes/PendingChangesManager.h"
#include "icons/HiddenThemeIcons.h"
#include "icons/IconStore.h"
#include "icons/ImageIntake.h"
#include "model/catalogue/AppManager.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/MainQueue.h"
#include "platform/NotificationCenter.h"
#include "platform/OnAllCores.h"
#include "platform/Threads.h"
#include "themes/ThemeFile.h"
#include "themes/ThemeManager.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace tavrik {

/// A theme's image for an application.
struct ThemeManager::WantedIcon {
    ApplicationInfo app;
    MacPath file;
    std::vector<MacPath> row; ///< the icons that the application's row shows
};

namespace {

/// The first of these icon files that has exactly this content.
std::optional<MacPath> fileWith(ByteView content, const std::vector<MacPath>& icons, const FileManager& files) {
    for (const MacPath& icon : icons) {
        const auto present = files.attributes(icon, Links::dontFollow);
        if (!present || present->type != FileType::file || present->size != content.size())
            continue;
        const auto read = files.read(icon, content.size());
        if (read && std::ranges::equal(*read, content))
            return icon;
    }
    return std::nullopt;
}

/// The file names of a theme that are not to be applied: hidden, or staged to be hidden or deleted.
std::set<std::string> passedOver(const StagedChanges& staged, const std::string& themeID,
                                 std::set<std::string> hidden) {
    for (const ThemeIconHide& hide : staged.pendingThemeIconHides) {
        if (hide.themeID == themeID)
            hidden.insert(hide.iconFileName);
    }
    if (const auto deleted = staged.pendingThemeIconDeletions.find(themeID);
        deleted != staged.pendingThemeIconDeletions.end())
        hidden.insert(deleted->second.begin(), deleted->second.end());
    return hidden;
}

} // namespace

ThemeApplication ThemeManager::applyTheme(const Theme& theme) {
    assertOffMainThread("Applying a theme");
    setApplyingTheme(true);
    log("Applying theme: " + theme.name + " (ID: " + theme.themeID + ")");
    ThemeApplication answer;

    // Every image becomes a file of the icon store, or turns out to be there already.
    const std::vector<WantedIcon> wanted = wantedIcons(theme, answer);
    std::vector<Result<MacPath>> found(wanted.size(), Error{});
    ignoreFailure(onAllCores(wanted.size(), [&](std::size_t number) {
        found[number] = iconOf(wanted[number]);
        return Done{}; // one that fails keeps no other from its icon
    }));

    // They are staged together; those that are not by then are files that nothing names.
    std::map<std::string, MacPath> icons;
    for (std::size_t number = 0; number < wanted.size(); ++number) {
        if (found[number])
            icons.emplace(wanted[number].app.bundleID, *found[number]);
        else
            answer.failed.push_back(found[number].error().description);
    }
    MainQueue::sync([&] { answer.applied = m_pendingChanges.addIcons(icons); });
    log("Theme application complete. Applied " + std::to_string(answer.applied) + " icons.");
    setApplyingTheme(false);
    return answer;
}

void ThemeManager::setApplyingTheme(bool isApplying) {
    MainQueue::sync([&] {
        m_isApplyingTheme = isApplying;
        m_notifications.post(kThemesUpdated);
    });
}

std::vector<ThemeManager::WantedIcon> ThemeManager::wantedIcons(const Theme& theme, ThemeApplication& answer) {
    StagedChanges staged;
    MainQueue::sync([&] { staged = m_pendingChanges.staged(); });
    if (staged.pendingThemeDeletions.contains(theme.themeID)) {
        answer.failed.push_back("The theme “" + theme.name +
                                "” is to be deleted when the changes are applied, so its icons are not used.");
        return {};
    }
    const std::set<std::string> hidden = passedOver(staged, theme.themeID, m_hidden.hidden(theme.themeID));

    std::vector<WantedIcon> wanted;
    for (ApplicationInfo& app : m_apps.loadApplications()) {
        const auto file = m_library.iconFor(theme.themeID, app.bundleID, hidden);
        if (!file)
            continue;
        if (app.isIOSApp || app.isUnsupportedApp) {
            log("⏭️ Leaving " + app.name + " alone: " +
                (app.isIOSApp ? "the icon of an iOS app cannot be changed" : "it cannot be restyled"));
            answer.leftAlone.push_back(std::move(app));
            continue;
        }
        wanted.push_back({std::move(app), *file, {}});
    }
    MainQueue::sync([&] {
        for (WantedIcon& icon : wanted)
            icon.row = m_pendingChanges.iconRow(icon.app.bundleID).displayPaths();
    });
    return wanted;
}

/// The file of the row that shows the very same picture, or a new pending icon. The error is a sentence.
Result<MacPath> ThemeManager::iconOf(const WantedIcon& wanted) {
    const auto content = m_mac.files.read(wanted.file, kLargestThemeIcon);
    if (!content)
        return Error{"The theme's icon for “" + wanted.app.name +
                     "” cannot be read: " + content.error().description + "."};
    // A theme's icons are mostly square already, and so the same, byte for byte, as what was made of them.
    if (const auto same = fileWith(*content, wanted.row, m_mac.files))
        return *same;
    const auto picture = AppManager::iconPicture(readPicture(*content, wanted.file.name()), wanted.app.bundleID,
                                                 wanted.app.name);
    if (!picture)
        return picture.error();
    if (const auto same = fileWith(picture->png, wanted.row, m_mac.files))
        return *same;
    return m_apps.saveIcon(*picture, wanted.app.bundleID, wanted.app.name);
}

} // namespace tavrik
