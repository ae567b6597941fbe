#include "MaintenanceStage.h"
#include "maintenance/OrphanedIcons.h"
#include "maintenance/OrphanedWrappers.h"
#include "platform/Bookmarks.h"

#include <cerrno>

namespace tavrik::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

const std::string kQuestion = "\n\nWould you like to clean up left over theme data?";

class Orphans : public MaintenanceStage {
protected:
    void expectAsked(const std::string& text) const {
        ASSERT_EQ(alerts.asked.size(), 1U);
        const Alert& alert = alerts.asked.front();
        EXPECT_EQ(alert.title, "Notice");
        EXPECT_EQ(alert.text, text + kQuestion);
        EXPECT_THAT(alert.buttons, ElementsAre("Clean Up", "Not Now"));
        EXPECT_EQ(alert.style, AlertStyle::informational);
    }

    MacPath cacheOf(const std::string& bundleID) { return program->iconStore.iconCacheURL() / bundleID; }

    MacPath tilePathOf(const std::string& bundleID) const {
        const auto tiles = volume.pinnedTiles();
        return std::ranges::find(tiles, bundleID, &PinnedTile::bundleID)->path;
    }

    /// A bookmark as SQL.
    std::string bookmarkOf(const MacPath& path) {
        constexpr std::string_view kDigits = "0123456789abcdef";
        std::string text = "x'";
        const auto bookmark = own.bookmarks.make(path);
        for (const std::uint8_t byte : *bookmark) {
            text += kDigits[byte >> 4];
            text += kDigits[byte & 15];
        }
        return text + "'";
    }
};

} // namespace

TEST_F(Orphans, AreCleanedUpOnceThePersonAgreesAndNothingElseIsTouched) {
    restyle({{kAtlas, 1}, {kInkwell, 2}, {kCinder, 3}});
    const auto shown = [this] {
        const auto row = volume.appRows(kCinder);
        const auto wrapper =
            std::ranges::find_if(row, [](const auto& each) { return isWrapperPath(each.path); });
        return wrapper == row.end() ? std::tuple(0L, 0L) : std::tuple(wrapper->row, wrapper->parent);
    };
    const auto cinder = shown();
    removeApp("Atlas.app");
    const FileTree before = treeOf(volume.host(practice::kHome));
    alerts.answers = {1};
    startWithChecks();
    expectAsked("An app you previously themed, Atlas, has been deleted.");
    EXPECT_THAT(differences(before, treeOf(volume.host(practice::kHome))), IsEmpty());

    removeApp("Inkwell.app");
    startWithChecks();
    expectAsked("The following apps you previously themed have been deleted:\n\n Atlas\nInkwell");
    EXPECT_THAT(linesLike({"🗑️", "🧹 Deleted", "🧹 Ch", "  Deleted", "  Removed sel", "🧹 Cleaned up",
                           ">>> Restarted"}),
                ElementsAre("🗑️ Found orphaned tavrik app: Atlas", "🗑️ Found orphaned tavrik app: Inkwell",
                            "🧹 Deleted orphaned wrapper: Atlas", "🧹 Deleted orphaned wrapper: Inkwell",
                            "🧹 Checking for orphaned icon caches...", "  Deleted icon cache for: " + kAtlas,
                            "  Deleted icon cache for: " + kInkwell,
                            "  Removed selected icon entry for: " + kAtlas,
                            "  Removed selected icon entry for: " + kInkwell,
                            "🧹 Cleaned up 2 orphaned icon cache folders",
                            "🧹 Cleaned up 2 orphaned selected icon entries",
                            ">>> Restarted Dock to cleanup orphaned database entries"));
    EXPECT_EQ(refreshed, 1);
    clock.sleep(std::chrono::seconds(5));
    EXPECT_EQ(tilePathOf(kAtlas), MacPath("/Applications/Atlas.app"))
        << "it works again should Atlas come back";
    for (const std::string& bundleID : {kAtlas, kInkwell}) {
        EXPECT_FALSE(program->settings.getMapping(bundleID) || program->settings.getSelectedIcon(bundleID));
        EXPECT_FALSE(own.files.exists(cacheOf(bundleID)));
        for (const LaunchpadItem& row : volume.appRows(bundleID))
            EXPECT_FALSE(isWrapperPath(row.path));
    }
    EXPECT_EQ(shown(), cinder);
    EXPECT_EQ(permanentIcons(kCinder), std::vector({3}));
    EXPECT_TRUE(program->settings.getMapping(kCinder));
    startWithChecks();
    EXPECT_THAT(alerts.asked, IsEmpty());
}

TEST_F(Orphans, AMovedApplicationGetsItsPlaceBack) {
    restyle({{kAtlas, 1}});
    const MacPath moved("/Applications/Utilities/Atlas.app");
    ASSERT_TRUE(own.files.move(MacPath("/Applications/Atlas.app"), moved));
    const auto row = program->settings.getMapping(kAtlas)->originalRowID;
    execute("UPDATE apps SET bookmark = " + bookmarkOf(moved) +
            " WHERE item_id = " + std::to_string(static_cast<std::int64_t>(row)));
    startWithChecks();
    clock.sleep(std::chrono::seconds(5));
    EXPECT_FALSE(lookOf(kAtlas).isWrapper || program->settings.getMapping(kAtlas));
    EXPECT_EQ(volume.appRows(kAtlas).size(), 1U);
    EXPECT_EQ(permanentIcons(kAtlas), std::vector({1})) << "it is installed";
}

TEST_F(Orphans, AreOnlyWrappersWhoseOriginalIsGoneForGood) {
    const std::pair<const char*, const char*> wrappers[] = {
        {"Gone", "/Applications/Gone.app/Contents"},
        {"Binned", "/Users/practice/.Trash/Binned.app/Contents"}, // there, but in the Trash
        {"Atlas", "/Applications/Atlas.app/Contents"},
        {"Away", "/Volumes/Away/Away.app/Contents"}, // not mounted
        {"Linked", "/Applications/Linked.app/Contents"},
        {"Loose", "Elsewhere"}, // no link of the program's
        {"Unread", "/Applications/Unread.app/Contents"},
    };
    for (const auto& [name, target] : wrappers) {
        const MacPath wrapper = kWrappers / (std::string(name) + ".app");
        ASSERT_TRUE(own.files.createFolder(wrapper) && own.files.createLink(wrapper / "Contents", target));
    }
    ASSERT_TRUE(own.files.createFolder(MacPath(wrappers[1].second)));
    ASSERT_TRUE(own.files.createLink(MacPath("/Applications/Linked.app"), "/Volumes/Away/Linked.app"));
    ASSERT_TRUE(own.files.createFolder(kWrappers / "Half.app"));
    ASSERT_TRUE(own.files.createLink(kWrappers / "Planted.app", (kWrappers / "Gone.app").string()));
    files.failOn("attributes", MacPath(wrappers[6].second), EIO);
    const auto found = orphanedWrappers(program->applyServices);
    EXPECT_THAT(found, ElementsAre(kWrappers / "Binned.app", kWrappers / "Gone.app"));

    removeOrphanedWrappers(program->applyServices, found);
    EXPECT_TRUE(own.files.exists(MacPath(wrappers[1].second))) << "no link was followed";
    EXPECT_THAT(orphanedWrappers(program->applyServices), IsEmpty());
    ASSERT_TRUE(own.files.move(kWrappers, practice::kHome / "Elsewhere"));
    ASSERT_TRUE(own.files.createLink(kWrappers, (practice::kHome / "Elsewhere").string()));
    ASSERT_TRUE(own.files.createFolder(practice::kHome / "Elsewhere/Other.app"));
    ASSERT_TRUE(own.files.createLink(practice::kHome / "Elsewhere/Other.app/Contents", "/nowhere"));
    EXPECT_THAT(orphanedWrappers(program->applyServices), IsEmpty());
}

TEST_F(Orphans, IconsOfWhatMayBeInstalledStay) {
    const MacPath away("/Volumes/Away/Away.app");
    ASSERT_TRUE(own.files.createFolder(away));
    const std::string toAway = bookmarkOf(away);
    ASSERT_TRUE(own.files.remove(away.parent()));
    execute("UPDATE apps SET bookmark = " + toAway + " WHERE bundleid = 'net.example.umbra'");
    execute("UPDATE apps SET bookmark = x'00' WHERE bundleid = 'net.example.lantern'");
    removeApp("Beacon.app");
    // While Launchpad makes its database anew it does not know this one.
    execute("DELETE FROM apps WHERE bundleid = 'org.example.inkwell'");
    for (const char* bundleID : {"org.example.atlas", "org.example.inkwell", "com.apple.Dictionary",
                                 "net.example.tidewater.helper", "net.example.umbra", "net.example.lantern",
                                 "com.example.lumen.beacon", "org.gone", "org.staged", ".DS", "-rf"}) {
        ASSERT_TRUE(own.files.createFolder(cacheOf(bundleID)));
        program->settings.setSelectedIcon(bundleID, 0);
    }
    ASSERT_TRUE(own.files.createLink(cacheOf("org.link"), "/Applications"));
    add("org.staged", 1);
    const OrphanedIcons found = orphanedIcons(program->applyServices);
    EXPECT_THAT(found.caches, ElementsAre(cacheOf("com.example.lumen.beacon"), cacheOf("org.gone")));
    EXPECT_THAT(found.selectedIcons,
                UnorderedElementsAre("com.example.lumen.beacon", "org.gone", ".DS", "-rf"));

    // Without a list of applications nobody knows who is installed.
    ASSERT_TRUE(own.files.remove(launchpadDatabasePath(practice::kTemporaryFolder).parent()));
    EXPECT_TRUE(orphanedIcons(program->applyServices).empty());
}

} // namespace tavrik::test
