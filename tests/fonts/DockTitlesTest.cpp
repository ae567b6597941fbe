#include "fonts/FontStage.h"

#include <chrono>

namespace tavrik::test {

using namespace std::chrono_literals;
using testing::ElementsAre;
using DockTitlesTest = FontStage;

TEST_F(DockTitlesTest, WaitsForTheDockToTakeEachStepIn) {
    fonts().applyFont(kBold);
    EXPECT_THAT(clock.waits(), ElementsAre(200ms, 100ms, 100ms, 500ms, 100ms, 100ms, 500ms, 100ms, 100ms));
    clock.forgetWaits();
    const auto written = *mac.files.read(dockFile);
    fonts().applyFont(kBold);
    EXPECT_TRUE(log.has("No font changes needed in Dock"));
    EXPECT_THAT(clock.waits(), ElementsAre(500ms, 100ms, 100ms));
    EXPECT_EQ(*mac.files.read(dockFile), written);
}

TEST_F(DockTitlesTest, WritesAgainWhatTheDockWritesOver) {
    const plist::Value old = volume.dockPreferences();
    int overwrites = 2;
    session.setInterceptor([&](const MacPath& tool, const auto&...) -> std::optional<Result<ToolResult>> {
        if (tool.name() != "killall" || overwrites-- <= 0)
            return std::nullopt;
        // First the old labels, with a higher count and a tile that the user has just added; then ours, with a
        // lower count.
        plist::Value dock = overwrites > 0 ? old : volume.dockPreferences();
        auto& tiles = *dock.find("persistent-apps")->as<plist::Array>();
        if (overwrites > 0)
            tiles.push_back(tiles.front());
        (*dock.as<plist::Dictionary>())["mod-count"] = overwrites > 0 ? 1'000'000 : 1;
        EXPECT_TRUE(program->dock.writeDockPlist(dock));
        return ToolResult();
    });
    first["tile " + std::to_string(first.size())] = "Launchpad";
    show(kBold);
    EXPECT_EQ(log.count("WARNING: Dock plist verification failed, retrying..."), 2u);
    EXPECT_EQ(log.count("Verified Dock plist write successful"), 1u);
}

TEST_F(DockTitlesTest, GivesUpAfterThreeTriesOfFiveWrites) {
    const auto before = *mac.files.read(dockFile);
    files.failOn("write", dockFile, ENOSPC);
    fonts().applyFont(kBold);
    EXPECT_EQ(log.count("Failed to write Dock plist (attempt 5)"), 3u);
    EXPECT_EQ(log.count("ERROR: Failed to write Dock plist after 5 attempts"), 3u);
    EXPECT_TRUE(log.has("Font application to Dock failed, retrying... (1 attempts left)"));
    EXPECT_TRUE(log.has("WARNING: Failed to apply font to Dock after multiple attempts"));
    EXPECT_EQ(std::ranges::count(clock.waits(), 1000ms), 12);
    EXPECT_EQ(*mac.files.read(dockFile), before);
    EXPECT_TRUE(log.has("Applied font to 3 folder(s)")) << "the next targets go on";

    files.failOn("write", dockFile, ENOSPC, Times::once);
    show(kBold);
    EXPECT_TRUE(log.has("Successfully wrote Dock plist (attempt 2)"));
}

TEST_F(DockTitlesTest, NeverWritesOverPreferencesThatCannotBeReadOrAreNotThere) {
    ASSERT_TRUE(mac.files.write(dockFile, bytesOf("bplist00 cut")));
    fonts().resetAllFonts();
    EXPECT_EQ(log.count("Failed to read Dock plist for font reset"), 3u);
    EXPECT_EQ(textOf(*mac.files.read(dockFile)), "bplist00 cut");
    ASSERT_TRUE(mac.files.remove(dockFile));
    fonts().applyFont(kBold);
    EXPECT_EQ(log.count("Dock plist does not exist at: " + dockFile.string()), 3u);
    EXPECT_FALSE(mac.files.exists(dockFile));
}

} // namespace tavrik::test
