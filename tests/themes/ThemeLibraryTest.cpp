#include "themes/ThemeLibrary.h"

#include "platform/PropertyList.h"
#include "support/FileTree.h"
#include "support/LogRecorder.h"
#include "support/SmallMac.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <functional>
#include <span>

namespace tavrik::test {

namespace {

using testing::ElementsAre;

const std::string kAtlas = "com.example.atlas", kAtlasIcon = kAtlas + ".png";
const Theme kOcean{.themeID = "abcdefgh01234567", .name = "Ocean", .createdDate = {700'000'000.25}};
const Theme kDesert{.themeID = "zzzz000000000000", .name = "Desert 🏜️", .createdDate = {1.5}};
const Theme kFresh{.themeID = "1111111111111111", .name = "Fresh", .createdDate = {2}};

/// A library of two themes, the first of them with an icon.
struct ThemeLibraryTest : testing::Test {
    LogRecorder log;
    SmallMac mac;
    FileManager& disk{mac.practice.mac().files}; ///< never fails
    ThemeLibrary library{mac.mac};
    const MacPath icons = library.iconsOf(kOcean.themeID);

    ThemeLibraryTest() { fill(); }

    /// Not by the library: it waits for the disk at each step.
    void fill() {
        for (const Theme& theme : {kOcean, kDesert}) {
            put(library.folderOf(theme.themeID) / "Info.plist", textOf(*encodeTheme(theme)));
            EXPECT_TRUE(disk.createFolder(library.iconsOf(theme.themeID)));
        }
        put(icons / kAtlasIcon, "blue");
    }

    void put(const MacPath& file, std::string_view text) {
        ASSERT_TRUE(disk.createFolder(file.parent()));
        ASSERT_TRUE(disk.write(file, bytesOf(text)));
    }

    FileTree tree() const { return treeOf(disk, library.path().parent()); }
};

struct Change {
    const char* name;
    Theme theme;
    std::function<Status(ThemeLibrary&, const std::string& themeID, const std::string& bundleID)> run;

    Status operator()(ThemeLibrary& library) const { return run(library, theme.themeID, kAtlas); }
};

/// The first four name an icon.
const std::vector<Change> kChanges{
    {"create", kFresh,
     [](auto& in, auto& id, auto& icon) {
         return in.create({id, "x", {}}, {{icon + ".png", {'1'}}, {"b.icns", {}}});
     }},
    {"write", kOcean, [](auto& in, auto& id, auto& icon) { return in.writeIcon(id, icon, bytesOf("green")); }},
    {"rename", kOcean,
     [](auto& in, auto& id, auto& icon) { return in.renameIcon(id, kAtlasIcon, icon + "b"); }},
    {"removeIcon", kOcean, [](auto& in, auto& id, auto& icon) { return in.removeIcon(id, icon + ".png"); }},
    {"update", kOcean, [](auto& in, auto& id, auto&) { return in.update({id, "Sea", {}}); }},
    {"remove", kOcean, [](auto& in, auto& id, auto&) { return in.remove(id); }},
};

} // namespace

TEST(ThemeName, IsTrimmedAndThenHeldAgainstTheRules) {
    std::string fifty;
    for (int i = 0; i < 25; ++i)
        fifty += "👨‍👩‍👧‍👦e\u0301";
    for (const std::string& name : {std::string(50, 'a'), fifty, std::string("a.b"), std::string("- 中")}) {
        EXPECT_EQ(trimmedThemeName(" \t\n\u3000" + name + "\u00A0 "), name);
        EXPECT_TRUE(isValidThemeName(name)) << name;
    }
    for (const std::string& name : {std::string(51, 'a'), fifty + "a", trimmedThemeName(" \u2003"),
                                    trimmedThemeName(" .a"), trimmedThemeName("a. "), trimmedThemeName("a\xFF"),
                                    "a" + std::string(3, '\0') + "b", "a" + std::string(9'000, '\xCC')})
        EXPECT_FALSE(isValidThemeName(name)) << name;
    for (const char character : std::string("/\\:*?\"<>|\n\x7F"))
        EXPECT_FALSE(isValidThemeName(std::string("a") + character + "b")) << character;
}

TEST_F(ThemeLibraryTest, LoadsThemesAndSkipsWhatIsNone) {
    const auto putRecord = [&](const std::string& folder, plist::Value id, plist::Value name,
                               plist::Value date) {
        const plist::Dictionary record{{"themeID", id}, {"name", name}, {"createdDate", date}, {"more", 1}};
        put(library.folderOf(folder) / "Info.plist", textOf(*plist::serialize(record, plist::Format::xml)));
    };
    const std::string good = "good000000000000", bad = "bad000000000000";
    putRecord(good, good, " Good ", Date{5});
    putRecord(bad + "1", "../../../../etc/", "x", Date{5});
    putRecord(bad + "2", kOcean.themeID, "x", Date{5});
    putRecord(bad + "3", bad + "3", "a/b", Date{5});
    putRecord(bad + "4", bad + "4", 7, Date{5});
    putRecord(bad + "5", bad + "5", "x", "yesterday");
    putRecord("Copy of a theme", good, "x", Date{5});
    put(library.folderOf(bad + "6") / "Info.plist", std::string(kLargestThemeRecord + 1, ' '));
    put(library.folderOf(bad + "7") / "Info.plist", "bplist00");
    putRecord(".new-" + good, good, "x", Date{5});
    ASSERT_TRUE(disk.createFolder(library.folderOf("norecord00000000")));
    ASSERT_TRUE(disk.createLink(library.folderOf("link000000000000"), good));
    log.clear();
    EXPECT_THAT(library.load(), ElementsAre(kOcean, Theme{good, "Good", {5}}, kDesert));
    EXPECT_TRUE(log.has("14 items in themes directory"));
    EXPECT_EQ(log.lines().size(), 9u) << "a line for each record that is refused, and none for the rest";
}

TEST_F(ThemeLibraryTest, SaysWhyThereIsNoLibrary) {
    const std::string path = library.path().string();
    mac.files.failOn("list", library.path(), EIO, Times::once);
    EXPECT_THAT(library.load(), ElementsAre());
    ASSERT_TRUE(disk.remove(library.path()));
    EXPECT_THAT(library.load(), ElementsAre());
    ASSERT_TRUE(disk.create(library.path(), {}));
    EXPECT_THAT(library.load(), ElementsAre());
    for (const Change& change : kChanges)
        EXPECT_FALSE(change(library)) << change.name;
    EXPECT_THAT(log.lines(), ElementsAre(testing::StartsWith("Error loading themes: " + path),
                                         "Themes directory does not exist at: " + path,
                                         "Themes path exists but is not a directory: " + path));
}

TEST_F(ThemeLibraryTest, PrefersThePngAndPassesOverTheHiddenAndTheImpossible) {
    for (const std::string& name : {kAtlas + ".icns", std::string("b.icns"), std::string("c.jpg"),
                                    std::string("d.png.new"), std::string(".png"), std::string("e.PNG")})
        put(icons / name, "x");
    ASSERT_TRUE(disk.createFolder(icons / "folder.png"));
    ASSERT_TRUE(disk.createLink(icons / "link.png", kAtlasIcon));
    EXPECT_THAT(library.icons(kOcean.themeID),
                ElementsAre(ThemeIcon{"b", icons / "b.icns"}, ThemeIcon{kAtlas, icons / kAtlasIcon}));
    EXPECT_EQ(library.iconFor(kOcean.themeID, kAtlas, {kAtlasIcon}), icons / (kAtlas + ".icns"));
    for (const char* bundleID : {"", "c", "folder", "link", "../Icons/b"})
        EXPECT_EQ(library.iconFor(kOcean.themeID, bundleID, {}), std::nullopt) << bundleID;
}

TEST_F(ThemeLibraryTest, RefusesNamesThatLeadElsewhereAreTakenOrAreNotThere) {
    put(icons / "taken.icns", "x");
    const FileTree before = tree();
    for (const std::string& id : {std::string(), std::string(".."), "../Themes/" + kOcean.themeID,
                                  kOcean.themeID + "/", std::string("ABCDEFGH01234567"), std::string("abc")}) {
        for (const Change& change : kChanges)
            EXPECT_FALSE(change.run(library, id, kAtlas)) << change.name << id;
        EXPECT_THAT(library.icons(id), ElementsAre()) << id;
        EXPECT_EQ(library.iconFor(id, kAtlas, {}), std::nullopt) << id;
    }
    for (const std::string& name :
         {std::string("."), std::string("../b"), std::string("-b"), std::string("b\n")}) {
        for (const Change& change : std::span(kChanges).first(4))
            EXPECT_FALSE(change.run(library, change.theme.themeID, name)) << change.name << name;
    }
    const auto refusal = [&](const std::string& fileName, const std::string& bundleID) {
        return library.renameIcon(kOcean.themeID, fileName, bundleID).error().description;
    };
    EXPECT_EQ(refusal(kAtlasIcon, "a/b"), "“a/b” cannot name an icon");
    EXPECT_EQ(refusal(kAtlasIcon, "taken"), "The theme has an icon for “taken” already");
    EXPECT_EQ(refusal("d.png", "e"), "The theme has no icon “d.png”");
    EXPECT_TRUE(library.renameIcon(kOcean.themeID, kAtlasIcon, kAtlas));
    EXPECT_FALSE(library.create({kFresh.themeID, "a:b", {}}));
    EXPECT_FALSE(library.create(kOcean));
    EXPECT_FALSE(library.update(kFresh));
    EXPECT_FALSE(library.writeIcon(kFresh.themeID, kAtlas, bytesOf("x")));
    EXPECT_TRUE(library.removeIcon(kFresh.themeID, "b.png"));
    EXPECT_TRUE(library.remove(kFresh.themeID));
    EXPECT_THAT(differences(before, tree()), ElementsAre());
}

TEST_F(ThemeLibraryTest, ReachesNothingThroughAPlantedLink) {
    const MacPath outside("/Outside");
    ASSERT_TRUE(disk.copy(library.path(), outside));
    const FileTree before = treeOf(disk, outside);
    const std::string theme = "/" + kOcean.themeID;
    for (const std::string& planted :
         {std::string(), theme, theme + "/Info.plist", theme + "/Icons", theme + "/Icons/" + kAtlasIcon}) {
        for (const Change& change : kChanges) {
            ASSERT_TRUE(disk.remove(library.path()));
            fill();
            const MacPath path(library.path().string() + planted);
            ASSERT_TRUE(disk.remove(path) && disk.createLink(path, outside.string() + planted));
            ignoreFailure(change(library));
            library.removeLeftovers();
            EXPECT_EQ(treeOf(disk, outside), before) << planted << " before " << change.name;
        }
    }
}

/// In a child process one operation of a change fails, or all from it on do, or the child is killed at it.
TEST_F(ThemeLibraryTest, EveryChangeLeavesTheOldOrTheNewWhereverItFailsOrIsKilled) {
    const FileTree before = tree();
    const auto restore = [&] { return disk.remove(library.path()) && (fill(), mac.files.forget(), true); };
    for (const Change& change : kChanges) {
        ASSERT_TRUE(restore() && change(library));
        const FileTree after = tree();
        const std::size_t steps = mac.files.count();
        for (const int fault : {EIO, ENOSPC, -SIGKILL}) {
            for (std::size_t step = 1; step <= steps && !HasFailure(); ++step) {
                SCOPED_TRACE(change.name + (" fault " + std::to_string(fault)) + " at " + std::to_string(step));
                ASSERT_TRUE(restore());
                const pid_t child = ::fork();
                ASSERT_GE(child, 0);
                if (child == 0) {
                    mac.files.setRule([&](const FileOperation& operation) -> std::optional<int> {
                        if (operation.number < step || (operation.number > step && fault == EIO))
                            return std::nullopt;
                        return fault < 0 ? ::kill(::getpid(), -fault) : fault;
                    });
                    ::_exit(change(library) ? 0 : 1);
                }
                int status = 0;
                ASSERT_EQ(::waitpid(child, &status, 0), child);
                EXPECT_EQ(WIFSIGNALED(status), fault < 0);
                const bool isLeft = disk.exists(library.folderOf(".new-" + kFresh.themeID));
                EXPECT_FALSE(isLeft && fault == EIO);
                EXPECT_THAT(library.load(), testing::Contains(kDesert));
                library.removeLeftovers();
                const FileTree found = tree();
                EXPECT_TRUE(found == after || (found == before && status != 0))
                    << testing::PrintToString(found);
                EXPECT_TRUE(found == after || change(library)) << "cannot be repeated";
                EXPECT_EQ(tree(), after);
            }
        }
    }
}

TEST_F(ThemeLibraryTest, ClearsAwayWhatKillsLeaveAndNothingElse) {
    for (const char* name : {".DS_Store", ".new-mine", ".deleted-", "notes.new", "abcdefgh01234567/mine.new",
                             "abcdefgh01234567/Icons/x.txt.new", "abcdefgh01234567/Icons/b.png.new/x"})
        put(library.path() / name, "theirs");
    const FileTree before = tree();
    for (const char* name : {".new-1111111111111111/Icons/a.png", ".deleted-abcdefgh01234567/Info.plist",
                             "abcdefgh01234567/Icons/a.png.new", "abcdefgh01234567/Info.plist.new"})
        put(library.path() / name, "ours");
    library.removeLeftovers();
    EXPECT_THAT(differences(before, tree()), ElementsAre());
    mac.files.failOn("remove", library.folderOf(kDesert.themeID), EIO);
    EXPECT_TRUE(library.remove(kDesert.themeID)) << "a folder goes file by file, so it is renamed first";
}

} // namespace tavrik::test
