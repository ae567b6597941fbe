#include "fonts/FontStage.h"
#include "practice/dock/Dock.h"

#include <chrono>

namespace tavrik::test {

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

class DockTitlesTest : public FontStage {
protected:
    std::vector<std::string> labels() const {
        std::vector<std::string> all;
        for (const PinnedTile& tile : volume.pinnedTiles())
            all.push_back(tile.label);
        return all;
    }

    std::vector<std::string> inBold(std::vector<std::string> all) {
        for (std::string& label : all)
            label = fonts().fontReplacer().convert(label, "Mathematical Bold");
        return all;
    }

    void apply() { fonts().applyFont("Mathematical Bold"); }

    const std::vector<std::string> firstLabels = labels();
};

} // namespace

TEST_F(DockTitlesTest, WaitsForTheDockToTakeEachStepIn) {
    apply();
    EXPECT_THAT(clock.waits(), ElementsAre(200ms, 100ms, 100ms, 500ms, 100ms, 100ms, 500ms, 100ms, 100ms));
    clock.forgetWaits();
    const auto written = *mac.files.read(dockFile);
    apply();
    EXPECT_TRUE(log.has("No font changes needed in Dock"));
    EXPECT_THAT(clock.waits(), ElementsAre(500ms, 100ms, 100ms));
    EXPECT_EQ(*mac.files.read(dockFile), written);
}

TEST_F(DockTitlesTest, WritesAgainWhatTheDockWritesOver) {
    int overwrites = 2;
    session.setInterceptor(
        [&](const MacPath& tool, const auto&, const auto&) -> std::optional<Result<ToolResult>> {
            if (tool.name() != "killall" || overwrites-- <= 0)
                return std::nullopt;
            plist::Value dock = volume.dockPreferences();
            auto& tiles = *dock.find("persistent-apps")->as<plist::Array>();
            if (overwrites > 0) {
                // As new as ours, with the old labels and a tile that the user has just added.
                for (std::size_t tile = 0; tile < firstLabels.size(); ++tile)
                    (*tiles[tile].find("tile-data")->as<plist::Dictionary>())["file-label"] = firstLabels[tile];
                tiles.push_back(tiles.front());
            } else {
                (*dock.as<plist::Dictionary>())["mod-count"] = 1;
            }
            EXPECT_TRUE(program->dock.writeDockPlist(dock));
            return ToolResult();
        });
    apply();
    EXPECT_EQ(log.count("WARNING: Dock plist verification failed, retrying..."), 2u);
    EXPECT_EQ(log.count("Verified Dock plist write successful"), 1u);
    auto wanted = firstLabels;
    wanted.push_back(firstLabels.front());
    EXPECT_EQ(labels(), inBold(wanted));
}

TEST_F(DockTitlesTest, GivesUpAfterThreeTriesOfFiveWrites) {
    const auto before = *mac.files.read(dockFile);
    files.failOn("write", dockFile, ENOSPC);
    apply();
    EXPECT_EQ(log.count("Failed to write Dock plist (attempt 5)"), 3u);
    EXPECT_EQ(log.count("ERROR: Failed to write Dock plist after 5 attempts"), 3u);
    EXPECT_TRUE(log.has("Font application to Dock failed, retrying... (1 attempts left)"));
    EXPECT_TRUE(log.has("WARNING: Failed to apply font to Dock after multiple attempts"));
    EXPECT_EQ(std::ranges::count(clock.waits(), 1000ms), 12);
    EXPECT_EQ(*mac.files.read(dockFile), before);
    EXPECT_TRUE(log.has("Applied font to 3 folder(s)")) << "the next targets go on";

    files.failOn("write", dockFile, ENOSPC, Times::once);
    apply();
    EXPECT_TRUE(log.has("Successfully wrote Dock plist (attempt 2)"));
    EXPECT_EQ(labels(), inBold(firstLabels));
}

TEST_F(DockTitlesTest, NeverWritesOverPreferencesThatCannotBeReadOrAreNotThere) {
    ASSERT_TRUE(mac.files.write(dockFile, bytesOf("bplist00 cut")));
    fonts().resetAllFonts();
    EXPECT_EQ(log.count("Failed to read Dock plist for font reset"), 3u);
    EXPECT_EQ(textOf(*mac.files.read(dockFile)), "bplist00 cut");
    ASSERT_TRUE(mac.files.remove(dockFile));
    apply();
    EXPECT_EQ(log.count("Dock plist does not exist at: " + dockFile.string()), 3u);
    EXPECT_FALSE(mac.files.exists(dockFile));
}

} // namespace tavrik::test
