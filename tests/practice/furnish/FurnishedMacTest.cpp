#include "platform/Bookmarks.h"
#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PracticeMac.h"
#include "support/practice/PracticeVolume.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <set>

namespace tavrik::practice {

namespace {

using namespace test;
using testing::ElementsAre;

struct FurnishedMac : testing::Test {
    Mac& mac() { return m_practiceMac.mac(); }

    std::vector<LaunchpadItem> rowsOfType(int type) const {
        std::vector<LaunchpadItem> rows = m_volume.launchpadItems();
        std::erase_if(rows, [&](const LaunchpadItem& item) { return item.type != type; });
        return rows;
    }

    /// What the bundle at a path says it is; empty when there is none.
    std::string identifierAt(const MacPath& bundle) {
        for (const char* place : {"Contents/Info.plist", "WrappedBundle/Info.plist"})
            if (mac().files.exists(bundle / place))
                if (const auto info = m_volume.propertyList(bundle / place);
                    const auto* identifier = info.find<std::string>("CFBundleIdentifier"))
                    return *identifier;
        return "";
    }

    PracticeVolume m_volume;
    PracticeMac m_practiceMac{m_volume.root()};
};

std::string trimmed(std::string text) {
    std::erase(text, ' ');
    return text;
}

TEST_F(FurnishedMac, LaunchpadRowsLeadToBundlesThatAgreeButForOneThatIsGone) {
    std::vector<std::string> leadNowhere;
    std::set<MacPath> paths;
    for (const LaunchpadItem& app : rowsOfType(4)) {
        EXPECT_TRUE(paths.insert(app.path).second) << app;
        EXPECT_EQ(app.title, app.path.stem());
        if (!mac().files.exists(app.path))
            leadNowhere.push_back(app.title);
        else if (identifierAt(app.path) != trimmed(app.bundleID))
            ADD_FAILURE() << app;
    }
    EXPECT_THAT(leadNowhere, ElementsAre("Windlass"));
    EXPECT_GE(paths.size(), 40u);
}

TEST_F(FurnishedMac, HasPagesAndFoldersWhosePlacesAreDense) {
    std::map<std::int64_t, std::set<int>> places;
    for (const LaunchpadItem& item : m_volume.launchpadItems())
        EXPECT_TRUE(places[item.parent].insert(item.ordering).second && item.ordering >= 0) << item;
    for (const auto& [parent, orderings] : places)
        EXPECT_EQ(*orderings.rbegin(), static_cast<int>(orderings.size()) - 1) << "in " << parent;
    EXPECT_GE(places[1].size(), 4u) << "the holding page and three others";
    EXPECT_GE(rowsOfType(2).size(), 3u);
}

TEST_F(FurnishedMac, DockTilesAgreeWithTheirBundles) {
    constexpr double kReferenceSince1904 = 3'061'152'000;
    std::vector<PinnedTile> apps = m_volume.pinnedTiles();
    EXPECT_EQ(std::erase_if(apps, [](const PinnedTile& tile) { return tile.bundleID.empty(); }), 1u)
        << "a spacer";
    for (const PinnedTile& tile : apps) {
        EXPECT_EQ(identifierAt(tile.path), tile.bundleID) << tile;
        EXPECT_EQ(tile.url, mac().bookmarks.fileURL(tile.path)) << tile;
    }

    const plist::Value preferences = m_volume.dockPreferences();
    std::set<std::int64_t> numbers;
    for (const char* section : {"persistent-apps", "persistent-others", "recent-apps"})
        for (const plist::Value& tile : *preferences.find<plist::Array>(section)) {
            EXPECT_TRUE(numbers.insert(*tile.find<std::int64_t>("GUID")).second);
            const plist::Value& data = *tile.find("tile-data");
            const auto* bookmark = data.find<Bytes>("book");
            if (!bookmark || !data.find("bundle-identifier"))
                continue;
            const auto target = mac().bookmarks.resolve(*bookmark);
            ASSERT_TRUE(target) << target.error().description;
            const auto seconds = *data.find<std::int64_t>("file-mod-date") & 0xFFFF'FFFF;
            EXPECT_EQ(static_cast<double>(seconds) - kReferenceSince1904,
                      mac().files.attributes(*target)->modified.sinceReference);
        }
}

} // namespace

} // namespace tavrik::practice
