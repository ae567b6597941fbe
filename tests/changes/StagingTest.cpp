#include "ChangesStage.h"

namespace tavrik::test {

using Staging = ChangesStage;
using testing::ElementsAre;
using testing::Not;

TEST_F(Staging, RowsFollowWhatIsDoneToThem) {
    furnish({1, 2, 3});
    EXPECT_EQ(row(), (Row{{1, 2, 3}, 3}));

    // A chosen icon stays chosen whatever goes before it.
    ASSERT_TRUE(changes().removeIcon(kAtlas, 1));
    EXPECT_EQ(row(), (Row{{1, 3}, 3}));
    ASSERT_TRUE(add(4));
    EXPECT_EQ(row(), (Row{{1, 3, 4}, 4})) << "a new icon is wanted as the icon";
    ASSERT_TRUE(add(5));
    ASSERT_TRUE(changes().selectIcon(kAtlas, 3));
    ASSERT_TRUE(changes().removeIcon(kAtlas, 2));
    EXPECT_EQ(row(), (Row{{1, 3, 5}, 5}));
    EXPECT_EQ(onDisk(), (Numbers{1, 2, 3, 5})) << "pending icons go at once, permanent ones with the apply";
    ASSERT_TRUE(changes().removeIcon(kAtlas, 2));
    EXPECT_EQ(row(), (Row{{1, 3}, -1})) << "without the chosen one, the application's own";

    // Theme icons follow the row, and move with its end.
    ASSERT_TRUE(changes().selectIcon(kAtlas, 3));
    ASSERT_TRUE(changes().removeIcon(kAtlas, 0));
    EXPECT_EQ(changes().iconRow(kAtlas).selectedIconIndex, 2);

    for (const int outside : {-1, 1, 2})
        EXPECT_FALSE(changes().removeIcon(kAtlas, outside));
    EXPECT_FALSE(changes().selectIcon(kAtlas, -2));
    EXPECT_FALSE(changes().addIcon(kAtlas, permanent("icon_0.png")));
    EXPECT_FALSE(changes().addIcon(kAtlas, pending("icon_9.png")));
    EXPECT_FALSE(changes().addIcon("com.example.other", pending("icon_9.png")));
}

TEST_F(Staging, AnEntryIsThereWhileItDiffersFromWhatIsApplied) {
    furnish({1, 2, 3});
    int posts = 0;
    const auto observation =
        program->notifications.observe(std::string(kPendingChangesUpdated), [&] { ++posts; });
    const auto expectNothingStaged = [&](const char* after) {
        EXPECT_FALSE(changes().hasPendingChanges()) << after;
        EXPECT_FALSE(files.exists(changes().tempFileURL())) << after;
        EXPECT_TRUE(files.exists(changes().pendingChangesBaseURL())) << after;
    };
    ASSERT_TRUE(changes().selectIcon(kAtlas, 0));
    EXPECT_TRUE(recoveryFile());
    ASSERT_TRUE(changes().selectIcon(kAtlas, 2));
    expectNothingStaged("choosing back");

    ASSERT_TRUE(add(4));
    ASSERT_TRUE(changes().removeIcon(kAtlas, 3));
    ASSERT_TRUE(changes().selectIcon(kAtlas, 2));
    expectNothingStaged("removing what was added");

    // With icon 1 out of the row, the applied icon 2 is at place 1, which must not pass for a choice of icon 1.
    ASSERT_TRUE(changes().removeIcon(kAtlas, 1));
    EXPECT_EQ(recoveryFile()->find("markedForDeletion")->find(kAtlas)->as<plist::Array>()->size(), 1u);
    changes().updatePendingState(kAtlas, {}, {}, 1);
    EXPECT_EQ(row(), (Row{{1, 2, 3}, 2}));
    changes().updatePendingState(kAtlas, {}, {}, 2);
    expectNothingStaged("taking the removal back");

    changes().setPendingReset(true);
    changes().setPendingFont("Mathematical Bold");
    EXPECT_FALSE(changes().staged().pendingReset) << "a font takes the reset back";
    changes().setPendingFont({});
    changes().hideThemeIcon("abc", "com.example.atlas.png");
    changes().hideThemeIcon("abc", "com.example.atlas.png");
    changes().unhideThemeIcon("abc", "com.example.atlas.png");
    expectNothingStaged("fonts and themes");

    // A number of no icon in the settings: the row shows the own icon, and choosing that one is a change.
    program->settings.setSelectedIcon(kAtlas, 7);
    EXPECT_EQ(row(), (Row{{1, 2, 3}, -1}));
    EXPECT_TRUE(log.has("⚠️ State mismatch detected for com.example.atlas"));
    ASSERT_TRUE(changes().selectIcon(kAtlas, std::nullopt));
    EXPECT_TRUE(changes().hasPendingChanges());
    EXPECT_EQ(posts, 15);

    changes().clearAllPendingChanges();
    expectNothingStaged("clearing");
    EXPECT_TRUE(log.has("🧹 Cleared pending changes"));
}

TEST_F(Staging, UnsafeNamesAreNotStaged) {
    for (const std::string name : {"", ".", "..", "a/b", "../x", "/x", "a\nb", "-rf"}) {
        changes().hideThemeIcon(name, "icon.png");
        changes().hideThemeIcon("abc", name);
        changes().deleteThemeIcon("abc", name);
        changes().deleteTheme(name);
        changes().updatePendingState(name, {MacPath("/Users/practice/icon_0.png")}, {0}, 0);
        EXPECT_FALSE(changes().selectIcon(name, 0));
        EXPECT_FALSE(changes().hasPendingChanges()) << name;
    }
}

TEST_F(Staging, AFailedSaveKeepsWhatIsStagedAndWhatTheOldFileNames) {
    ASSERT_TRUE(add(1));
    ASSERT_TRUE(add(2));
    files.failOn("replace", changes().tempFileURL(), ENOSPC);
    log.clear();
    ASSERT_TRUE(changes().removeIcon(kAtlas, 0));
    EXPECT_TRUE(log.mentions("   ❌ Failed to write file: "));
    EXPECT_EQ(row(), (Row{{2}, 2}));
    EXPECT_FALSE(changes().savePendingChangesToTempFile());

    restart();
    ASSERT_TRUE(changes().recover());
    EXPECT_EQ(row(), (Row{{1, 2}, 2})) << "the icon that the file names must still be there";

    // The file cannot be removed: it and its icons stay together, and go together later.
    files.failOn("remove", changes().tempFileURL(), EACCES);
    changes().clearAllPendingChanges();
    EXPECT_TRUE(log.mentions("⚠️ Could not clear pending changes: "));
    EXPECT_FALSE(changes().hasPendingChanges());
    restart();
    ASSERT_TRUE(changes().recover());
    EXPECT_EQ(row(), (Row{{1, 2}, 2}));
}

TEST_F(Staging, AnIconThatCouldNotBeMovedStaysStaged) {
    furnish({1});
    ASSERT_TRUE(add(2));
    ASSERT_TRUE(add(3));
    files.failOn("move", permanent("icon_2.png"), EACCES);
    EXPECT_FALSE(apply());
    files.failNothing();
    EXPECT_EQ(row(), (Row{{1, 2, 3}, 3}));
    restart();
    ASSERT_TRUE(changes().recover());
    EXPECT_EQ(row(), (Row{{1, 2, 3}, 3}));
    EXPECT_TRUE(apply());
    EXPECT_EQ(row(), (Row{{1, 2, 3}, 3}));
}

} // namespace tavrik::test
