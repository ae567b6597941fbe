#include "practice/furnish/DockPreferencesBuilder.h"

#include <cmath>
#include <utility>

namespace tavrik::practice {

namespace {

constexpr int kAbsoluteURL = 15; // "_CFURLStringType"
constexpr int kAppFile = 41;     // "file-type"
constexpr int kLauncherFile = 169;
constexpr int kFolderFile = 2;
constexpr int kRecentFile = 1;

/// The odd form that the Dock stores: the lower half has whole seconds since 1904, the upper the broken second
/// in 65536ths.
std::int64_t dockDate(Date date) {
    constexpr std::int64_t kReferenceSince1904 = 3'061'152'000;
    const double whole = std::floor(date.sinceReference);
    const auto fraction = static_cast<std::int64_t>((date.sinceReference - whole) * 65536);
    return (fraction << 32) + static_cast<std::int64_t>(whole) + kReferenceSince1904;
}

plist::Dictionary commonData(const DockTile& tile, int fileType) {
    return {
        {"book", tile.bookmark},
        {"file-data", plist::Dictionary{{"_CFURLString", tile.url}, {"_CFURLStringType", kAbsoluteURL}}},
        {"file-label", tile.label},
        {"file-mod-date", dockDate(tile.modified)},
        {"file-type", fileType},
        {"is-beta", false},
        {"parent-mod-date", dockDate(tile.folderModified)},
    };
}

plist::Dictionary appData(const DockTile& tile, int fileType) {
    plist::Dictionary data = commonData(tile, fileType);
    data["bundle-identifier"] = tile.bundleID;
    data["dock-extra"] = tile.hasPlugIn;
    return data;
}

} // namespace

void DockPreferencesBuilder::addApp(const DockTile& tile) {
    const bool isLauncher = tile.bundleID == "com.apple.launchpad.launcher";
    m_apps.push_back(this->tile("file-tile", appData(tile, isLauncher ? kLauncherFile : kAppFile)));
}

void DockPreferencesBuilder::addSpacer() {
    m_apps.push_back(tile("small-spacer-tile", {{"file-label", ""}}));
}

void DockPreferencesBuilder::addRecentApp(const DockTile& tile) {
    m_recents.push_back(this->tile("file-tile", appData(tile, kRecentFile)));
}

void DockPreferencesBuilder::addFolder(const DockTile& tile) {
    plist::Dictionary data = commonData(tile, kFolderFile);
    data["arrangement"] = 2; // by date added
    data["displayas"] = 0;
    data["preferreditemsize"] = -1;
    data["showas"] = 1;
    m_others.push_back(this->tile("directory-tile", std::move(data)));
}

plist::Value DockPreferencesBuilder::build() const {
    return plist::Dictionary{
        {"autohide", false},
        {"largesize", 92.0},
        {"last-analytics-stamp", plist::Array{752'087'214.604'127}},
        {"lastShowIndicatorTime", 752'093'340.279'511},
        {"loc", "en_GB"},
        {"magnification", true},
        {"mineffect", "scale"},
        {"minimize-to-application", true},
        {"mod-count", 214},
        {"mru-spaces", false},
        {"orientation", "bottom"},
        {"persistent-apps", m_apps},
        {"persistent-others", m_others},
        {"recent-apps", m_recents},
        {"region", "GB"},
        {"show-recents", true},
        {"tilesize", 54.0},
        {"trash-full", false},
        {"version", 1},
        {"wvous-br-corner", 14},
        {"wvous-br-modifier", 0},
    };
}

plist::Value DockPreferencesBuilder::tile(const char* type, plist::Dictionary data) {
    return plist::Dictionary{{"GUID", m_nextGUID++}, {"tile-type", type}, {"tile-data", std::move(data)}};
}

} // namespace tavrik::practice
