#include "ListStage.h"

namespace tavrik::test {
namespace {

using testing::ElementsAre;

/// Three themes, each with an icon for Atlas, of which the second one is in use.
class OfferedThemeIconsTest : public ListStage {
protected:
    OfferedThemeIconsTest() {
        for (const char* name : {"Tide", "Dune", "Moss"})
            icons.push_back(addTheme(name));
        program.settings.setSelectedIcon(kAtlas, 1);
        EXPECT_TRUE(runUntil([this] { return row().app.themeIcons == icons; }));
        refresh();
        EXPECT_EQ(chosen(), icons[1]);
        log.clear();
    }

    void TearDown() override { EXPECT_FALSE(log.mentions("out of bounds")); }

    /// Nothing for the application's own.
    std::optional<MacPath> chosen() {
        const int place = row().app.selectedIconIndex - static_cast<int>(row().displayPaths().size());
        return place < 0 ? std::nullopt
                         : std::optional(row().app.themeIcons.at(static_cast<std::size_t>(place)));
    }

    Status hide(const MacPath& icon) { return list().hideThemeIcon(kAtlas, themeOf(icon), icon.name()); }

    std::vector<MacPath> icons;
};

TEST_F(OfferedThemeIconsTest, KeepTheChosenOneChosenWhenOthersGoAndComeBack) {
    EXPECT_TRUE(hide(icons[0]));
    EXPECT_THAT(row().app.themeIcons, ElementsAre(icons[1], icons[2]));
    EXPECT_EQ(chosen(), icons[1]);
    EXPECT_EQ(pending().staged().pendingChanges.at(kAtlas).selectedIndex, 0);

    pending().unhideThemeIcon(themeOf(icons[0]), icons[0].name());
    EXPECT_EQ(chosen(), icons[1]);
    EXPECT_FALSE(pending().hasPendingChanges()) << "all is as it is applied again";

    pending().deleteTheme(themeOf(icons[0]));
    pending().deleteThemeIcon(themeOf(icons[2]), icons[2].name());
    EXPECT_THAT(row().app.themeIcons, ElementsAre(icons[1]));
    EXPECT_EQ(chosen(), icons[1]);

    pending().clearAllPendingChanges();
    EXPECT_EQ(row().app.themeIcons, icons);
    EXPECT_EQ(chosen(), icons[1]);
}

TEST_F(OfferedThemeIconsTest, GiveWayToTheApplicationsOwnWhenTheChosenOneIsHidden) {
    EXPECT_TRUE(hide(icons[1]));
    EXPECT_THAT(row().app.themeIcons, ElementsAre(icons[0], icons[2]));
    EXPECT_FALSE(chosen());
    EXPECT_FALSE(hide(icons[1])) << "it is not offered any more";
    EXPECT_FALSE(list().hideThemeIcon(kAtlas, themeOf(icons[0]), kInkwell + ".png"));
}

TEST_F(OfferedThemeIconsTest, FollowAThemeThatComesInBetweenUnlessAnApplyRuns) {
    const Theme old{.themeID = "0123456789abcdef", .name = "Old", .createdDate = Date{1}};
    const std::map<std::string, Bytes> content{{kAtlas + ".png", *png::encode(picture(4))}};
    for (const bool isApplying : {true, false}) {
        program.apps.isApplyingChanges = isApplying;
        ASSERT_TRUE(program.themes.installTheme(old, content));
        ASSERT_TRUE(runUntil([this] { return row().app.themeIcons.size() == 4; }));
        EXPECT_EQ(chosen(), isApplying ? icons[0] : icons[1]);
        EXPECT_EQ(pending().hasPendingChanges(), !isApplying);
        ASSERT_TRUE(program.themes.removeTheme(old.themeID));
        ASSERT_TRUE(runUntil([this] { return row().app.themeIcons == icons; }));
        EXPECT_EQ(chosen(), icons[1]);
    }
    EXPECT_FALSE(pending().hasPendingChanges());
}

TEST_F(OfferedThemeIconsTest, AreNotChosenByAPlaceThatIsOutdated) {
    ASSERT_TRUE(files.remove(icons[0]));
    EXPECT_FALSE(list().selectIcon(kAtlas, 2));
    EXPECT_THAT(row().app.themeIcons, ElementsAre(icons[1], icons[2])) << "the row was read anew";
    EXPECT_TRUE(list().selectIcon(kAtlas, 1));
    EXPECT_EQ(chosen(), icons[2]);
}

TEST_F(OfferedThemeIconsTest, AreTheSameForAllAtOnceAsOneByOne) {
    const Bytes png = *png::encode(picture(5));
    const auto both = program.themes.createTheme(
        "Both",
        {{kAtlas + ".png", png}, {kAtlas + ".icns", png}, {kInkwell + ".icns", png}, {kMail + ".png", png}});
    const std::string themeID = both->themeID;
    const auto expectSame = [this](const char* what, std::size_t offered) {
        auto all = program.themes.themeIcons(program.themes.offer());
        for (const std::string& bundleID : {kAtlas, kInkwell, kMail, kXcode}) {
            EXPECT_EQ(all[bundleID], program.themes.themeIconsFor(bundleID)) << what;
            offered -= all[bundleID].size();
        }
        EXPECT_EQ(offered, 0U) << what;
    };
    expectSame("all", 6);
    pending().deleteThemeIcon(themeID, kAtlas + ".png");
    expectSame("the other format in the stead of a deleted icon", 6);
    pending().hideThemeIcon(themeID, kInkwell + ".png");
    expectSame("a staged hide counts for both formats", 5);
    EXPECT_TRUE(program.hiddenThemeIcons.hide(themeID, kMail + ".png"));
    expectSame("a hidden icon", 4);
    pending().deleteTheme(themeID);
    expectSame("a deleted theme", 3);
}

} // namespace
} // namespace tavrik::test
