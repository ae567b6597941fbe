#include "ChangesStage.h"
#include "support/FileTree.h"

namespace tavrik::test {

using Recovery = ChangesStage;
using plist::Array;
using plist::Dictionary;

TEST_F(Recovery, TakesInAllThatCanBeStaged) {
    ASSERT_TRUE(add(1) && add(2) && add(3) && apply());
    ASSERT_TRUE(changes().removeIcon(kAtlas, 0) && add(4));
    ASSERT_TRUE(changes().selectIcon(kAtlas, 4)); // a theme icon
    changes().hideThemeIcon("abc", "com.example.atlas.png");
    for (const char* name : {"b.png", "a.png"})
        changes().deleteThemeIcon("abc", name);
    changes().deleteTheme("def");
    changes().setPendingReset(true);
    const StagedChanges staged = changes().staged();

    restart();
    EXPECT_FALSE(changes().hasPendingChanges()) << "only a recovery takes the file in";
    EXPECT_TRUE(log.has("⚠️ Found existing recovery file from previous session!"));
    ASSERT_TRUE(changes().hasRecoverableChanges() && changes().recover());
    EXPECT_EQ(changes().staged(), staged);
    EXPECT_TRUE(changes().hasPendingChanges());
}

TEST_F(Recovery, AnUnfinishedApplyStaysStagedThoughTheSettingsHaveIt) {
    ASSERT_TRUE(add(1) && add(2) && apply());
    ASSERT_TRUE(changes().selectIcon(kAtlas, 0));
    // The apply ends after it has stored the selection, and before the Dock shows it.
    const auto change = changes().staged().pendingChanges.at(kAtlas);
    ASSERT_TRUE(program->transfer.begin({{kAtlas, change.iconPaths, {}}}));
    program->settings.setSelectedIcon(kAtlas, 0);
    for (int start = 0; start < 2; ++start) {
        ASSERT_TRUE(recover());
        EXPECT_EQ(changes().staged().pendingChanges.at(kAtlas), change);
    }
    ASSERT_TRUE(changes().selectIcon(kAtlas, 1));
    EXPECT_TRUE(changes().hasPendingChanges()) << "the Dock may show the other one";
}

TEST_F(Recovery, ADamagedFileIsPutAsideWithWhatItNames) {
    ASSERT_TRUE(add(1));
    const Bytes good = *files.read(changes().tempFileURL(), 1 << 20);
    Dictionary deep;
    for (int i = 0; i < 16; ++i)
        deep = Dictionary{{"iconChanges", deep}};
    const Bytes contents[] = {{},
                              Bytes(good.begin(), good.end() - 20),
                              *plist::serialize(Array{"iconChanges"}, plist::Format::xml),
                              *plist::serialize(deep, plist::Format::xml),
                              Bytes((16u << 20) + 1, ' '),
                              good};
    int number = 0;
    for (const Bytes& content : contents) {
        SCOPED_TRACE(++number);
        restart();
        ASSERT_TRUE(files.write(changes().tempFileURL(), content));
        if (content == good) // it can be read only later
            files.failOn("read", changes().tempFileURL(), EIO);
        log.clear();
        EXPECT_FALSE(changes().hasRecoverableChanges());
        EXPECT_TRUE(log.mentions(number < 5 ? "   ❌ Failed to parse recovery file"
                                            : "   ❌ Error reading recovery file: "));
        EXPECT_FALSE(changes().recover());
        EXPECT_TRUE(log.mentions("Failed to load pending changes from temp file: "));
        files.failNothing();
        EXPECT_TRUE(files.exists(changes().tempFileURL())) << "left as it is until something is staged";

        ASSERT_TRUE(add(10 + number));
        const std::string name =
            "pendingChanges.damaged" + (number == 1 ? "" : " " + std::to_string(number)) + ".plist";
        const auto kept = files.read(changes().pendingChangesBaseURL() / name, 1 << 25);
        EXPECT_TRUE(kept && *kept == content);
        EXPECT_TRUE(recover());
        EXPECT_EQ(std::ranges::count(onDisk(), 1), 1) << "its icon is not swept away";
    }
}

TEST_F(Recovery, AFileWithoutChangesIsNone) {
    writeRecoveryFile({{"timestamp", Date{1}}});
    EXPECT_FALSE(changes().hasRecoverableChanges());
    EXPECT_TRUE(log.has("   ⚠️ Recovery file exists but has no changes"));
    ASSERT_TRUE(add(1) && files.remove(changes().tempFileURL()));
    EXPECT_FALSE(recover());
    EXPECT_EQ(onDisk(), Numbers()) << "what nothing names is swept away";
}

TEST_F(Recovery, HostileFilesReachNothingOutside) {
    ASSERT_TRUE(add(1) && add(2) && add(3) && apply());
    ASSERT_TRUE(add(8, "com.example.other") && apply());
    const MacPath pictures("/Users/practice/Pictures");
    const MacPath cache = program->store.iconCacheURL();
    ASSERT_TRUE(files.createFolder(pictures));
    ASSERT_TRUE(files.copy(permanent("icon_0.png"), pictures / "icon_0.png"));
    ASSERT_TRUE(files.createLink(cache / "com.example.linked", pictures.string()));

    const auto change = [](const std::string& id, const std::string& path, plist::Value selected = 0) {
        Dictionary fields{{"iconPaths", Array{path}}, {"selectedIndex", std::move(selected)}};
        return Dictionary{{"iconChanges", Dictionary{{id, std::move(fields)}}}};
    };
    const std::string outside = "⚠️ Warning: Path marked as pending but not in pending directory: ";
    const std::string refused = "⚠️ Warning: Recovery file: refusing ";
    const std::string bounds =
        "⚠️ Warning: Selected index -4 out of bounds for com.example.atlas, resetting to -1";
    const std::string hidden = "⚠️ Warning: Invalid hidden index ";
    const std::string first = permanent("icon_0.png").string();
    const std::string linked = (cache / "com.example.linked/icon_0.png").string();
    const std::string link = pending("icon_5.png").string();
    const Dictionary hide{{"themeID", "../x"}, {"iconFileName", "a.png"}};

    const struct {
        Dictionary root;
        std::string line;
    } cases[] = {
        {change(kAtlas, "/Users/practice/Pictures/icon_0.png"),
         outside + "/Users/practice/Pictures/icon_0.png"},
        {change(kAtlas, pending("../../../../../../Pictures/icon_0.png").string()), outside},
        {change(kAtlas, permanent("../com.example.other/icon_0.png").string()), outside},
        {change(kAtlas, (cache / "com.example.other/icon_0.png").string()), outside},
        {change(kAtlas, "icon_0.png"), outside + "icon_0.png"},
        {change(kAtlas, link), "⚠️ Warning: Pending icon missing at " + link},
        {change("com.example.linked", linked), "⚠️ Warning: Permanent icon missing at " + linked},
        {change(kAtlas, first, -4), bounds},
        {change(kAtlas, first, "0"), "⚠️ Warning: Selected index "},
        {change("..", first), refused + "bundle identifier: .."},
        {{{"iconChanges", Array{}}}, refused},
        {{{"iconChanges", Dictionary{{kAtlas, "x"}}}}, refused},
        {{{"iconChanges", Dictionary{{kAtlas, Dictionary{{"iconPaths", Array{7}}}}}}}, refused},
        {{{"markedForDeletion", Dictionary{{"../com.example.other", Array{0}}}}}, refused},
        {{{"markedForDeletion", Dictionary{{"com.example.linked", Array{0}}}}}, hidden + "0"},
        {{{"markedForDeletion", Dictionary{{kAtlas, Array{-1, 3, "0"}}}}}, hidden + "3"},
        {{{"themeIconHides", Array{hide, "x"}}}, refused + "theme identifier: ../x"},
        {{{"pendingThemeIconDeletions", Dictionary{{"..", Array{"a"}}, {"x", Array{"../a", 1}}}}}, refused},
        {{{"pendingThemeDeletions", Array{"../x", "a\nb", 1}}}, refused + "theme identifier: a?b"},
        {{{"pendingFont", "Mathematical bold"}}, refused + "font: "},
        {{{"pendingFont", 1}, {"pendingReset", "true"}}, refused + "value: pendingFont"},
    };

    const FileTree before = treeOf(files, pictures);
    for (const auto& hostile : cases) {
        SCOPED_TRACE(hostile.line);
        restart();
        ASSERT_TRUE(files.createFolder(MacPath(link).parent()));
        ignoreFailure(files.createLink(MacPath(link), (pictures / "icon_0.png").string()));
        writeRecoveryFile(hostile.root);
        log.clear();
        files.setRule([&](const FileOperation& operation) -> std::optional<int> {
            const bool isRead = operation.name == "read" || operation.name == "copy";
            const bool isAway =
                operation.path.isInside(pictures) || operation.path.string().starts_with(linked);
            EXPECT_FALSE((isRead && operation.path.string() == link) ||
                         (isAway && operation.name != "attributes"))
                << operation.name << " " << operation.path.string();
            return std::nullopt;
        });
        EXPECT_TRUE(changes().recover());
        EXPECT_TRUE(log.mentions(hostile.line)) << testing::PrintToString(log.lines());
        StagedChanges staged = changes().staged();
        staged.pendingChanges.erase(kAtlas);
        staged.pendingChanges.erase("com.example.linked"); // its row is empty
        EXPECT_TRUE(staged.empty());
        while (changes().removeIcon(kAtlas, 0)) {
        }
        EXPECT_FALSE(changes().removeIcon("com.example.linked", 0));
        changes().clearAllPendingChanges();
        files.failNothing();
        EXPECT_EQ(row(), (Row{{1, 2, 3}, 3}));
        EXPECT_EQ(onDisk("com.example.other"), Numbers{8});
        EXPECT_THAT(differences(before, treeOf(files, pictures)), testing::IsEmpty());
    }
}

TEST_F(Recovery, AFolderThatIsALinkIsNotFollowed) {
    const MacPath outside("/Users/practice/Pictures");
    ASSERT_TRUE(files.createFolder(outside) && files.remove(changes().pendingChangesBaseURL()));
    ASSERT_TRUE(files.createLink(changes().pendingChangesBaseURL(), outside.string()));
    ASSERT_TRUE(files.create(outside / "pendingChanges.plist", bytesOf("theirs")));
    const FileTree before = treeOf(files, outside);
    EXPECT_FALSE(recover());
    changes().setPendingReset(true);
    EXPECT_FALSE(add(1) || changes().savePendingChangesToTempFile());
    changes().clearAllPendingChanges();
    EXPECT_THAT(differences(before, treeOf(files, outside)), testing::IsEmpty());
}

TEST_F(Recovery, AChoiceStaysWithItsIcon) {
    ASSERT_TRUE(add(1) && add(2) && add(3) && apply());
    const plist::Value one = permanent("icon_0.png").string();
    const plist::Value two = permanent("icon_1.png").string();
    const plist::Value three = permanent("icon_2.png").string();
    const plist::Value gone = pending("icon_9.png").string();

    const struct {
        const char* what;
        Array iconPaths;
        int selected;
        Array marked;
        int expected;
    } cases[] = {{"the row is in the order of the numbers", {gone, "/x", two, one}, 2, {}, 1},
                 {"a hidden icon has no place", {two, two, three}, 2, {0}, 1},
                 {"a missing icon cannot be chosen", {one, gone}, 1, {}, -1},
                 {"a theme icon keeps its distance from the row's end", {one, three, gone}, 5, {1}, 4},
                 {"what is shown is not to be deleted", {one, two, three}, 1, {1}, 1}};

    for (const auto& [what, iconPaths, selected, marked, expected] : cases) {
        restart();
        const Dictionary fields{{"iconPaths", iconPaths}, {"selectedIndex", selected}};
        writeRecoveryFile({{"iconChanges", Dictionary{{kAtlas, fields}}},
                           {"markedForDeletion", Dictionary{{kAtlas, marked}}}});
        EXPECT_TRUE(changes().recover());
        EXPECT_EQ(changes().iconRow(kAtlas).selectedIconIndex, expected) << what;
    }
}

} // namespace tavrik::test
