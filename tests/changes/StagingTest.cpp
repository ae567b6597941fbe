#include "ChangesStage.h"

namespace tavrik::test {

using Staging = ChangesStage;

TEST_F(Staging, RemovalsTakePendingIconsAtOnceAndMoveTheRowsEnd) {
    ASSERT_TRUE(add(1) && add(2) && add(3) && apply() && add(4) && add(5));
    ASSERT_TRUE(changes().removeIcon(kAtlas, 1) && changes().removeIcon(kAtlas, 2));
    EXPECT_EQ(row(), (Row{{1, 3, 5}, 5}));
    EXPECT_EQ(onDisk(), (Numbers{1, 2, 3, 5})) << "permanent ones go with the apply";
    ASSERT_TRUE(changes().selectIcon(kAtlas, 4) && changes().removeIcon(kAtlas, 0));
    EXPECT_EQ(changes().iconRow(kAtlas).selectedIconIndex, 3) << "theme icons move with the row's end";

    for (const int outside : {-1, 2, 3})
        EXPECT_FALSE(changes().removeIcon(kAtlas, outside));
    EXPECT_FALSE(changes().selectIcon(kAtlas, -2));
    EXPECT_FALSE(changes().addIcon(kAtlas, permanent("icon_0.png")));
    EXPECT_FALSE(changes().addIcon(kAtlas, pending("icon_9.png")));
}

TEST_F(Staging, AnEntryIsThereWhileItDiffersFromWhatIsApplied) {
    ASSERT_TRUE(add(1) && add(2) && add(3) && apply());
    int posts = 0;
    const auto observation =
        program->notifications.observe(std::string(kPendingChangesUpdated), [&] { ++posts; });
    const auto expectStaged = [&](bool isStaged, const char* after) {
        EXPECT_EQ(changes().hasPendingChanges(), isStaged) << after;
        EXPECT_EQ(files.exists(changes().tempFileURL()), isStaged) << after;
    };
    ASSERT_TRUE(changes().selectIcon(kAtlas, 0));
    expectStaged(true, "choosing");
    ASSERT_TRUE(changes().selectIcon(kAtlas, 2));
    expectStaged(false, "choosing back");
    ASSERT_TRUE(add(4) && changes().removeIcon(kAtlas, 3) && changes().selectIcon(kAtlas, 2));
    expectStaged(false, "removing what was added");

    // With icon 1 out of the row, the applied icon 2 is at place 1, which must not pass for a choice of icon 1.
    ASSERT_TRUE(changes().removeIcon(kAtlas, 1));
    changes().updatePendingState(kAtlas, {}, {}, 1);
    expectStaged(true, "choosing another one with the removal taken back");
    EXPECT_EQ(row(), (Row{{1, 2, 3}, 2}));
    changes().updatePendingState(kAtlas, {}, {}, 2);
    expectStaged(false, "taking the removal back");

    changes().setPendingReset(true);
    changes().setPendingFont("Mathematical Bold");
    changes().setPendingFont({});
    expectStaged(false, "a font that took the reset back, and was taken back");
    changes().hideThemeIcon("abc", "com.example.atlas.png");
    changes().hideThemeIcon("abc", "com.example.atlas.png");
    changes().unhideThemeIcon("abc", "com.example.atlas.png");
    expectStaged(false, "unhiding");
    EXPECT_EQ(posts, 14);

    program->settings.setSelectedIcon(kAtlas, 7);
    EXPECT_EQ(row(), (Row{{1, 2, 3}, -1})) << "a number of no icon";
    EXPECT_TRUE(log.has("⚠️ State mismatch detected for com.example.atlas"));
    ASSERT_TRUE(changes().selectIcon(kAtlas, std::nullopt));
    expectStaged(true, "choosing the own icon, which the settings do not have");
    changes().clearAllPendingChanges();
    expectStaged(false, "clearing");
}

TEST_F(Staging, ManyIconsAreStagedInOneWriteAndTheBadOnesLeftOut) {
    ASSERT_TRUE(add(1) && add(2) && apply());
    ASSERT_TRUE(add(3));
    const auto saved = [&](const std::string& bundleID) {
        return program->store.savePendingIcon(QImage(8, 8, QImage::Format_RGB32), bundleID).value();
    };
    int posts = 0;
    const auto observation =
        program->notifications.observe(std::string(kPendingChangesUpdated), [&] { ++posts; });
    log.clear();
    const MacPath foreign = saved("com.example.foreign");
    EXPECT_EQ(changes().addIcons({{kAtlas, permanent("icon_0.png")},
                                  {"com.example.missing", pending("icon_7.png")},
                                  {"com.example.new", saved("com.example.new")},
                                  {"com.example.thief", foreign},
                                  {"../up", foreign}}),
              2U);
    EXPECT_EQ(row(), (Row{{1, 2, 3}, 1})) << "what the row has is chosen, not added again";
    EXPECT_EQ(changes().iconRow("com.example.new").selectedIconIndex, 0);
    EXPECT_EQ(changes().staged().pendingChanges.size(), 2U);
    EXPECT_EQ(log.count("📝 savePendingChangesToTempFile called"), 1U);
    EXPECT_EQ(changes().addIcons({{kAtlas, permanent("icon_9.png")}}), 0U);
    EXPECT_EQ(posts, 1);
    ASSERT_TRUE(recover());
    EXPECT_EQ(row(), (Row{{1, 2, 3}, 1}));
}

TEST_F(Staging, UnsafeNamesAreNotStaged) {
    for (const std::string name : {"", ".", "..", "a/b", "../x", "/x", "a\nb", "-rf"}) {
        changes().hideThemeIcon(name, "icon.png");
        changes().deleteThemeIcon("abc", name);
        changes().deleteTheme(name);
        changes().updatePendingState(name, {MacPath("/Users/practice/icon_0.png")}, {0}, 0);
        EXPECT_FALSE(changes().selectIcon(name, 0));
        EXPECT_FALSE(changes().hasPendingChanges()) << name;
    }
}

TEST_F(Staging, AFailedSaveKeepsWhatIsStagedAndWhatTheOldFileNames) {
    ASSERT_TRUE(add(1) && add(2));
    files.failOn("replace", changes().tempFileURL(), ENOSPC);
    ASSERT_TRUE(changes().removeIcon(kAtlas, 0));
    EXPECT_TRUE(log.mentions("   ❌ Failed to write file: "));
    EXPECT_EQ(row(), (Row{{2}, 2}));
    ASSERT_TRUE(recover());
    EXPECT_EQ(row(), (Row{{1, 2}, 2})) << "the icon that the file names must still be there";

    files.failOn("remove", changes().tempFileURL(), EACCES);
    changes().clearAllPendingChanges();
    EXPECT_TRUE(log.mentions("⚠️ Could not clear pending changes: "));
    EXPECT_FALSE(changes().hasPendingChanges());
    ASSERT_TRUE(recover());
    EXPECT_EQ(row(), (Row{{1, 2}, 2})) << "the file that could not be removed and its icons stay together";
}

TEST_F(Staging, AnIconThatCouldNotBeMovedStaysStaged) {
    ASSERT_TRUE(add(1) && apply());
    ASSERT_TRUE(add(2) && add(3));
    files.failOn("move", permanent("icon_2.png"), EACCES);
    EXPECT_FALSE(apply());
    ASSERT_TRUE(recover());
    EXPECT_EQ(row(), (Row{{1, 2, 3}, 3}));
    EXPECT_TRUE(apply());
    EXPECT_EQ(row(), (Row{{1, 2, 3}, 3}));
}

} // namespace tavrik::test
