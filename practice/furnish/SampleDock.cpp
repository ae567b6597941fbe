#include "practice/furnish/SampleDock.h"

#include "platform/PathRules.h"
#include "platform/PosixFileManager.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PracticeBookmarks.h"
#include "practice/furnish/DockPreferencesBuilder.h"
#include "practice/furnish/SampleApps.h"
#include "practice/furnish/VolumeBookmarks.h"

#include <string_view>

namespace tavrik::practice {

namespace {

/// After this many tiles stands a spacer: the system's own are on its left.
constexpr std::size_t kSpacerPlace = 4;

constexpr Date kHomeMade{739'757'104.364'258};

class Tiles {
public:
    explicit Tiles(TreeWriter& tree) : m_tree(tree), m_files(tree.root()), m_bookmarks(m_files) {}

    DockTile app(const char* identifier) {
        const SampleApp& app = sampleApp(identifier);
        DockTile tile = target(bundlePath(app), app.name, createdDate(app));
        tile.bundleID = app.identifier;
        tile.modified = modifiedDate(app);
        tile.hasPlugIn = tile.bundleID == "com.apple.iCal";
        return tile;
    }

    DockTile target(const MacPath& path, std::string_view label, Date created) {
        const Result<Bytes> bookmark = systemBookmark(m_tree.root(), path, created);
        m_tree.note(bookmark ? Status(Done{}) : Status(bookmark.error()));
        return {std::string(label), "",   m_bookmarks.fileURL(path), bookmark ? *bookmark : Bytes(), created,
                kHomeMade,          false};
    }

private:
    TreeWriter& m_tree;
    PosixFileManager m_files;
    PracticeBookmarks m_bookmarks;
};

} // namespace

void writeSampleDock(TreeWriter& tree) {
    if (!tree.status())
        return;
    Tiles tiles(tree);
    DockPreferencesBuilder preferences;
    for (std::size_t place = 0; place < sampleDockApps().size(); ++place) {
        if (place == kSpacerPlace)
            preferences.addSpacer();
        preferences.addApp(tiles.app(sampleDockApps()[place]));
    }
    for (const char* identifier : sampleRecentApps())
        preferences.addRecentApp(tiles.app(identifier));
    preferences.addFolder(tiles.target(kHome / "Downloads", "Downloads", kHomeMade));
    tree.propertyList(dockPreferencesPath(kHome), preferences.build(), plist::Format::binary, 0600);
}

} // namespace tavrik::practice
