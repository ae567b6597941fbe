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

const std::vector<Change> kIconChanges{
    {"create", kFresh,
     [](auto& in, auto& id, auto& bundleID) {
         return in.create({id, "Fresh", {}}, {{bundleID + ".png", {'1'}}, {"b.icns", {'2'}}});
     }},
    {"write", kOcean,
     [](auto& in, auto& id, auto& bundleID) { return in.writeIcon(id, bundleID, bytesOf("green")); }},
    {"rename", kOcean,
     [](auto& in, auto& id, auto& bundleID) { return in.renameIcon(id, bundleID + ".png", "b"); }},
    {"removeIcon", kOcean,
     [](auto& in, auto& id, auto& bundleID) { return in.removeIcon(id, bundleID + ".png"); }},
};

const std::vector<Change> kChanges = [] {
    std::vector<Change> all = kIconChanges;
    all.push_back({"update", kOcean, [](auto& in, auto& id, auto&) { return in.update({id, "Sea", {}}); }});
    all.push_back({"remove", kOcean, [](auto& in, auto& id, auto&) { return in.remove(id); }});
    return all;
}();

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
    const auto putRecord = [&](const std::string& folder, const plist::Value& id, const plist::Value& name,
                               const plist::Value& date) {
        const plist::Dictionary record{{"themeID", id}, {"name", name}, {"createdDate", date}, {"more", 1}};
        put(library.folderOf(folder) / "Info.plist", textOf(*plist::serialize(record, plist::Format::xml)));
    };
    const std::string good = "good000000000000";
    putRecord(good, good, " Good ", Date{5});
    putRecord("bad1000000000000", "../../../../etc/", "x", Date{5});
    putRecord("bad2000000000000", kOcean.themeID, "x", Date{5});
    putRecord("bad3000000000000", "bad3000000000000", "a/b", Date{5});
    putRecord("bad4000000000000", "bad4000000000000", 7, Date{5});
    putRecord("bad5000000000000", "bad5000000000000", "x", "yesterday");
    putRecord("Copy of a theme", good, "x", Date{5});
    put(library.folderOf("bad6000000000000") / "Info.plist", std::string(kLargestThemeRecord + 1, ' '));
    put(library.folderOf("bad7000000000000") / "Info.plist", "bplist00");
    putRecord(".new-" + good, good, "x", Date{5});
    ASSERT_TRUE(disk.createFolder(library.folderOf("norecord00000000")));
    ASSERT_TRUE(disk.createLink(library.folderOf("link000000000000"), good));
    log.clear();
    EXPECT_THAT(library.load(), ElementsAre(kOcean, Theme{good, "Good", {5}}, kDesert));
    EXPECT_TRUE(log.has("14 items in themes directory"));
    EXPECT_EQ(log.lines().size(), 9u) << "a line for each record that is refused, and none for the rest";
}

TEST_F(ThemeLibraryTest, SaysWhyThereIsNoLibraryAndTouchesNothingInItsPlace) {
    const MacPath elsewhere("/Elsewhere");
    const std::string path = library.path().string();
    mac.files.failOn("list", library.path(), EIO);
    EXPECT_THAT(library.load(), ElementsAre());
    mac.files.failNothing();
    ASSERT_TRUE(disk.move(library.path(), elsewhere));
    EXPECT_THAT(library.load(), ElementsAre());
    const FileTree before = treeOf(disk, elsewhere);
    for (const bool isLink : {true, false}) {
        ASSERT_TRUE(isLink ? disk.createLink(library.path(), "/Elsewhere") : disk.create(library.path(), {}));
        EXPECT_THAT(library.load(), ElementsAre());
        for (const Change& change : kChanges)
            EXPECT_FALSE(change(library)) << change.name;
        library.removeLeftovers();
        ASSERT_TRUE(disk.remove(library.path()));
    }
    EXPECT_EQ(treeOf(disk, elsewhere), before);
    const std::string noFolder = "Themes path exists but is not a directory: " + path;
    EXPECT_THAT(log.lines(), ElementsAre(testing::StartsWith("Error loading themes: " + path),
                                         "Themes directory does not exist at: " + path, noFolder, noFolder));
}

TEST_F(ThemeLibraryTest, PrefersThePngAndPassesOverTheHiddenAndTheImpossible) {
    for (const std::string& name : {kAtlas + ".icns", std::string("b.icns"), std::string("c.jpg"),
                                    std::string("d.png.new"), std::string(".png"), std::string("e.PNG")})
        put(icons / name, "x");
    ASSERT_TRUE(disk.createFolder(icons / "folder.png"));
    ASSERT_TRUE(disk.createLink(icons / "link.png", kAtlasIcon));
    EXPECT_THAT(library.icons(kOcean.themeID),
                ElementsAre(ThemeIcon{"b", icons / "b.icns"}, ThemeIcon{kAtlas, icons / kAtlasIcon}));
    const auto iconFor = [&](const std::string& bundleID, const std::set<std::string>& hidden) {
        return library.iconFor(kOcean.themeID, bundleID, hidden).value_or(MacPath()).name();
    };
    EXPECT_EQ(iconFor(kAtlas, {"b.icns"}), kAtlasIcon);
    EXPECT_EQ(iconFor(kAtlas, {kAtlasIcon}), kAtlas + ".icns");
    EXPECT_EQ(iconFor(kAtlas, {kAtlasIcon, kAtlas + ".icns"}), "");
    for (const char* bundleID : {"", "c", "folder", "link", "../Icons/b"})
        EXPECT_EQ(iconFor(bundleID, {}), "") << bundleID;
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
    for (const std::string& name : {std::string(), std::string("."), std::string("../b"), std::string("-b"),
                                    std::string("b\n"), std::string("b\0c", 3)}) {
        for (const Change& change : kIconChanges)
            EXPECT_FALSE(change.run(library, change.theme.themeID, name)) << change.name << name;
        EXPECT_EQ(library.renameIcon(kOcean.themeID, kAtlasIcon, name).error().description,
                  "“" + name + "” cannot name an icon");
    }
    EXPECT_EQ(library.renameIcon(kOcean.themeID, kAtlasIcon, "taken").error().description,
              "The theme has an icon for “taken” already");
    EXPECT_EQ(library.renameIcon(kOcean.themeID, "d.png", "e").error().description,
              "The theme has no icon “d.png”");
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
    put(MacPath("/Outside/Icons") / kAtlasIcon, "theirs");
    put(MacPath("/Outside/Info.plist"), "theirs");
    const FileTree outside = treeOf(disk, MacPath("/Outside"));
    for (const std::string& planted :
         {std::string(), std::string("/Info.plist"), std::string("/Icons"), "/Icons/" + kAtlasIcon}) {
        for (const Change& change : kChanges) {
            ASSERT_TRUE(disk.remove(library.path()));
            fill();
            const MacPath path(library.folderOf(kOcean.themeID).string() + planted);
            ASSERT_TRUE(disk.remove(path));
            ASSERT_TRUE(disk.createLink(path, "/Outside" + planted));
            ignoreFailure(change(library));
            library.removeLeftovers();
            EXPECT_EQ(treeOf(disk, MacPath("/Outside")), outside) << planted << " before " << change.name;
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
}

} // namespace tavrik::test
