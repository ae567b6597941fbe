#include "backups/DockCleaning.h"

#include "fonts/FontStage.h"
#include "platform/Bookmarks.h"
#include "system/DockTiles.h"

namespace tavrik::test {
namespace {

const std::string kAtlas = "org.example.atlas";

/// A Dock whose tiles for Atlas and the calendar lead to wrappers, beside what it was before.
class DockCleaningTest : public FontStage {
protected:
    /// The preferences without what counts changes.
    static plist::Value steady(plist::Value dock) {
        dock.as<plist::Dictionary>()->erase("mod-count");
        dock.as<plist::Dictionary>()->erase("RecentlyUsedApps");
        return dock;
    }

    void repoint() {
        for (const MacPath& app : {atlas, MacPath("/System/Applications/Calendar.app")}) {
            const MacPath bundle = wrapper.parent() / app.name();
            ASSERT_TRUE(mac.files.createFolder(bundle));
            ignoreFailure(mac.files.createLink(bundle / "Contents", (app / "Contents").string()));
            ASSERT_TRUE(program->dock.updateDockEntry(app == atlas ? kAtlas : "com.apple.iCal", bundle));
        }
    }

    Bytes clean(const Bytes& dock) {
        return DockCleaning(mac, program->settings, program->database, fonts().fontReplacer()).clean(dock);
    }

    void linkWrapperTo(const std::string& target) {
        ignoreFailure(mac.files.remove(wrapper / "Contents"));
        ASSERT_TRUE(mac.files.createLink(wrapper / "Contents", target));
    }

    /// The tile for Atlas after a cleaning of the Dock as it is.
    dock::Tile cleanedAtlas() {
        cleaned = *plist::parse(clean(*mac.files.read(dockFile)));
        return dock::findTile(cleaned, kAtlas);
    }

    const MacPath atlas{"/Applications/Atlas.app"};
    const MacPath wrapper = wrapperFolder(practice::kHome) / "Atlas.app";
    plist::Value cleaned;
};

TEST_F(DockCleaningTest, GivesTheDockThatWasThereBefore) {
    // A label in the user's language, and no date: both must come back.
    plist::Value untouched = volume.dockPreferences();
    dock::Tile calendar = dock::findTile(untouched, "com.apple.iCal");
    calendar.setModified(nullptr);
    for (const auto& [styles, label] : std::vector<std::pair<Styles, std::string>>{
             {{}, "Calendario"}, {{kBold}, "Calendar"}, {{kCaps}, "Calendar"}}) {
        calendar.setLabel(label);
        ASSERT_TRUE(program->dock.writeDockPlist(untouched));
        repoint();
        change(styles);
        log.clear();
        const Bytes before = *mac.files.read(dockFile);
        const Bytes after = clean(before);
        EXPECT_EQ(steady(*plist::parse(after)), steady(untouched)) << testing::PrintToString(styles);
        EXPECT_TRUE(log.has("  🔄 Swapping Tavrik bookmark for original: Atlas"));
        EXPECT_EQ(log.has("2 Tavrik bookmarks and 0 styled names in Dock"), styles.empty());
        EXPECT_EQ(log.has("  🔤 Cleaning font from: " + styled("Atlas", kBold)), styles == Styles{kBold});
        EXPECT_TRUE(textOf(after).starts_with("bplist00"));
        EXPECT_EQ(clean(after), after) << "cleaning twice changes nothing more";
        EXPECT_EQ(*mac.files.read(dockFile), before) << "the file is only read";
    }
}

TEST_F(DockCleaningTest, FindsTheOriginalByTheSavedBookmarkTheLinkOrTheName) {
    const MacPath elsewhere("/Volumes/Disk/Atlas.app");
    ASSERT_TRUE(mac.files.createFolder(elsewhere));
    for (const MacPath& path : {atlas, elsewhere})
        ASSERT_TRUE(mac.files.setModified(path, Date{1234.75}));
    repoint();
    const DockBookmark saved = *program->settings.getDockBookmark(kAtlas);
    program->settings.removeDockBookmark(kAtlas);
    for (const auto& [link, expected] :
         std::vector<std::pair<std::string, MacPath>>{{elsewhere.string() + "/Contents", elsewhere},
                                                      {"/Volumes/Gone/Atlas.app/Contents", atlas},
                                                      {(wrapper / "Contents").string(), atlas},
                                                      {"Contents", atlas}}) {
        linkWrapperTo(link);
        const dock::Tile tile = cleanedAtlas();
        EXPECT_EQ(*mac.bookmarks.resolve(*tile.bookmark()), expected) << link;
        EXPECT_EQ(*tile.url(), mac.bookmarks.fileURL(expected)) << link;
        EXPECT_EQ(*tile.modified(), plist::Value(1234)) << link;
    }
    // The original is gone.
    ASSERT_TRUE(mac.files.remove(atlas));
    EXPECT_TRUE(isWrapperPath(*mac.bookmarks.resolve(*cleanedAtlas().bookmark())));
    EXPECT_TRUE(log.has("  ⚠️ No original found for the Dock tile of " + wrapper.string()));
    program->settings.saveDockBookmark(saved);
    linkWrapperTo((atlas / "Contents").string());
    EXPECT_EQ(*cleanedAtlas().bookmark(), saved.bookmark);
    EXPECT_EQ(*cleanedAtlas().url(), "file:///Applications/Atlas.app/");
}

TEST_F(DockCleaningTest, ReturnsWhatItCannotReadAsItWas) {
    for (const auto& [dock, line] : std::vector<std::pair<std::string, std::string>>{
             {"", "⚠️ Could not parse dock plist, returning original"},
             {"<plist><array/></plist>", "⚠️ Could not parse dock plist, returning original"},
             {"<plist><dict><key>persistent-apps</key><dict/></dict></plist>",
              "⚠️ No persistent-apps found, returning original"},
             {"<plist><dict><key>persistent-apps</key><array><string/></array></dict></plist>",
              "  ℹ️ Dock plist is already clean"}}) {
        log.clear();
        EXPECT_EQ(textOf(clean(Bytes(dock.begin(), dock.end()))), dock);
        EXPECT_EQ(log.lines(), std::vector{line});
    }
}

} // namespace
} // namespace tavrik::test
