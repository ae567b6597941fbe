#include "changes/apply/ApplyStores.h"

#include "changes/apply/ApplyServices.h"
#include "changes/apply/ApplySnapshot.h"
#include "changes/apply/LaunchpadReading.h"
#include "fonts/FontManager.h"
#include "fonts/ShownStyles.h"
#include "icons/HiddenThemeIcons.h"
#include "icons/IconStore.h"
#include "model/SettingsManager.h"
#include "platform/Bookmarks.h"
#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "system/DockManager.h"
#include "system/DockTiles.h"
#include "themes/ThemeManager.h"
#include "wrappers/TavrikAppManager.h"

#include <cerrno>

namespace tavrik {

namespace {

template<typename T>
std::optional<T> copied(const T* value) {
    return value ? std::optional(*value) : std::nullopt;
}

/// Every tile that may be repointed or relabelled.
Result<std::vector<ApplyStores::Tile>> readTiles(const ApplyServices& with) {
    std::optional<plist::Value> dock = with.dock.readDockPlist();
    if (!dock)
        return Error{"The Dock's preferences cannot be read: " + with.dock.dockPlistPath().string() + "."};
    std::vector<ApplyStores::Tile> tiles;
    for (const dock::Tile& each : dock::applicationTiles(*dock)) {
        ApplyStores::Tile tile{.bundleID = copied(each.bundleID()).value_or(""),
                               .label = copied(each.label()),
                               .url = copied(each.url()),
                               .path = {}};
        if (const Bytes* bookmark = each.bookmark()) {
            if (const auto target = with.mac.bookmarks.resolve(*bookmark))
                tile.path = *target;
        }
        tiles.push_back(std::move(tile));
    }
    return tiles;
}

Result<std::set<std::string>> readWrappers(const ApplyServices& with) {
    const auto names = with.mac.files.list(with.wrappers.tavrikAppsURL());
    if (!names && names.error().code != ENOENT)
        return Error{"The folder of the wrappers cannot be read: " + names.error().description + "."};
    std::set<std::string> wrappers;
    for (const std::string& name : names ? *names : std::vector<std::string>()) {
        if (name.ends_with(".app") && !name.starts_with("."))
            wrappers.insert(name);
    }
    return wrappers;
}

/// Of those that the snapshot changes.
std::map<std::string, ApplyStores::ThemeState> readThemes(const ApplyServices& with,
                                                          const StagedChanges& changes) {
    std::set<std::string> ids = changes.pendingThemeDeletions;
    for (const auto& [themeID, fileNames] : changes.pendingThemeIconDeletions)
        ids.insert(themeID);
    for (const ThemeIconHide& hide : changes.pendingThemeIconHides)
        ids.insert(hide.themeID);

    std::map<std::string, ApplyStores::ThemeState> themes;
    for (const std::string& themeID : ids) {
        ThemeLibrary& library = with.themes.library();
        ApplyStores::ThemeState theme{.iconFiles = {}, .hidden = with.hiddenThemeIcons.hidden(themeID)};
        if (const auto names = with.mac.files.list(library.iconsOf(themeID)))
            theme.iconFiles.insert(names->begin(), names->end());
        if (with.mac.files.exists(library.folderOf(themeID)) || !theme.hidden.empty())
            themes.emplace(themeID, std::move(theme));
    }
    return themes;
}

} // namespace

ApplyStores::AppState appStateOf(const ApplyServices& with, const ApplicationInfo& app) {
    const std::string& bundleID = app.bundleID;
    ApplyStores::AppState state;
    state.permanentFolder = with.icons.iconCacheURL() / bundleID;
    state.selectedIcon = with.settings.getSelectedIcon(bundleID);
    if (const auto icons = with.icons.listAllIcons(bundleID)) {
        for (const MacPath& icon : *icons) {
            if (const auto attributes = with.mac.files.attributes(icon, Links::dontFollow))
                state.icons.emplace(attributes->fileID, icon);
        }
    }
    if (app.path.empty())
        return state;
    const bool hasBundle = with.wrappers.hasBundle(app);
    state.wrapper = with.wrappers.wrapperPath(app).value_or(MacPath());
    state.hasWrapper = hasBundle && with.wrappers.hasWrapper(bundleID);
    state.isRestyled = hasBundle || with.settings.getMapping(bundleID) || with.wrappers.isUnfinished(bundleID);
    return state;
}

Result<ApplyStores> readApplyStores(const ApplyServices& with, const ApplySnapshot& snapshot) {
    ApplyStores stores;
    if (const Status read = readLaunchpad(with, stores); !read)
        return read.error();
    auto tiles = readTiles(with);
    if (!tiles)
        return tiles.error();
    stores.tiles = std::move(*tiles);
    auto wrappers = readWrappers(with);
    if (!wrappers)
        return wrappers.error();
    stores.wrappers = std::move(*wrappers);
    for (const ApplyTask& task : snapshot.tasks)
        stores.staged.emplace(task.app.bundleID, appStateOf(with, task.app));
    stores.themes = readThemes(with, snapshot.changes);
    stores.shownStyles = shownStyles(with.settings, with.fonts.fontReplacer());
    stores.folderBackups = with.settings.getAllFolderBackups();
    return stores;
}

} // namespace tavrik
