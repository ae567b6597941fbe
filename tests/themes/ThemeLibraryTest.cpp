#include "themes/ThemeLibrary.h"

#include "platform/PropertyList.h"
#include "support/FileTree.h"
#include "support/LogRecorder.h"
#include "support/SmallMac.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <optional>
#include <span>
#include <vector>

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

using Texts = std::vector<std::string>;

/// The first four name an icon.
const Texts kChanges{"create", "write", "rename", "removeIcon", "update", "remove"};

/// To the theme that the change is for, or to another.
Status change(ThemeLibrary& library, const std::string& kind, const std::string& bundleID = kAtlas,
              const std::optional<std::string>& themeID = {}) {
    const std::string id = themeID.value_or(kind == "create" ? kFresh.themeID : kOcean.themeID);
    if (kind == "create")
        return library.create({id, "x", {}}, {{bundleID + ".png", {'1'}}, {"b.icns", {}}});
    if (kind == "write")
        return library.writeIcon(id, bundleID, bytesOf("green"));
    if (kind == "rename")
        return library.renameIcon(id, kAtlasIcon, bundleID == kAtlas ? "b" : bundleID);
    if (kind == "removeIcon")
        return library.removeIcon(id, bundleID + ".png");
    return kind == "update" ? library.update({id, "Sea", {}}) : library.remove(id);
}

/// Stands for a kill: nothing in the program catches it.
struct Killed {};

} // namespace

TEST(ThemeName, IsTrimmedAndThenHeldAgainstTheRules) {
    std::string fifty;
    for (int i = 0; i < 25; ++i)
        fifty += "👨‍👩‍👧‍👦e\u0301";
    for (const std::string& name : Texts{std::string(50, 'a'), fifty, "a.b", "- 中"}) {
        EXPECT_EQ(trimmedThemeName(" \t\n\u3000" + name + "\u00A0 "), name);
        EXPECT_TRUE(isValidThemeName(name)) << name;
    }
    Texts wrong{
        std::string(51, 'a'), fifty + "a", " \u2003", " .a", "a. ", "a\xFF", "a" + std::string(9'000, '\xCC')};
    for (const char character : std::string("/\\:*?\"<>|\n\x7F\0", 12))
        wrong.push_back(std::string("a") + character + "b");
    for (const std::string& name : wrong)
        EXPECT_FALSE(isValidThemeName(trimmedThemeName(name))) << name;
}

TEST_F(ThemeLibraryTest, LoadsThemesAndSkipsWhatIsNone) {
    const std::string good = "good000000000000";
    const auto putRecord = [&](const std::string& folder, plist::Dictionary changed) {
        plist::Dictionary record{
            {"themeID", folder}, {"name", " Good "}, {"createdDate", Date{5}}, {"more", 1}};
        for (auto& [key, value] : changed)
            record[key] = value;
        put(library.folderOf(folder) / "Info.plist", textOf(*plist::serialize(record, plist::Format::xml)));
    };
    putRecord(good, {});
    putRecord("bad0000000000001", {{"themeID", "../../../../etc/"}});
    putRecord("bad0000000000002", {{"themeID", good}});
    putRecord("bad0000000000003", {{"name", "a/b"}});
    putRecord("bad0000000000004", {{"name", 7}});
    putRecord("bad0000000000005", {{"createdDate", "yesterday"}});
    putRecord("bad0000000000006", {{"more", std::string(kLargestThemeRecord, ' ')}});
    put(library.folderOf("bad0000000000007") / "Info.plist", "bplist00");
    putRecord(".new-" + good, {{"themeID", good}});
    ASSERT_TRUE(disk.createFolder(library.folderOf("norecord00000000")));
    ASSERT_TRUE(disk.createLink(library.folderOf("link000000000000"), good));
    log.clear();
    EXPECT_THAT(library.load(), ElementsAre(kOcean, Theme{good, "Good", {5}}, kDesert));
    EXPECT_TRUE(log.has("13 items in themes directory"));
    EXPECT_EQ(log.lines().size(), 8u) << "a line for each record that is refused, and none for the rest";
}

TEST_F(ThemeLibraryTest, SaysWhyThereIsNoLibrary) {
    const std::string path = library.path().string();
    mac.files.failOn("list", library.path(), EIO, Times::once);
    EXPECT_THAT(library.load(), ElementsAre());
    ASSERT_TRUE(disk.remove(library.path()));
    EXPECT_THAT(library.load(), ElementsAre());
    ASSERT_TRUE(disk.create(library.path(), {}));
    EXPECT_THAT(library.load(), ElementsAre());
    for (const std::string& kind : kChanges)
        EXPECT_FALSE(change(library, kind)) << kind;
    EXPECT_THAT(log.lines(), ElementsAre(testing::StartsWith("Error loading themes: " + path),
                                         "Themes directory does not exist at: " + path,
                                         "Themes path exists but is not a directory: " + path));
}

TEST_F(ThemeLibraryTest, PrefersThePngAndPassesOverTheHiddenAndTheImpossible) {
    for (const std::string& name : Texts{kAtlas + ".icns", "b.icns", "c.jpg", "d.png.new", ".png", "e.PNG"})
        put(icons / name, "x");
    ASSERT_TRUE(disk.createFolder(icons / "folder.png") && disk.createLink(icons / "link.png", kAtlasIcon));
    EXPECT_THAT(library.icons(kOcean.themeID),
                ElementsAre(ThemeIcon{"b", icons / "b.icns"}, ThemeIcon{kAtlas, icons / kAtlasIcon}));
    EXPECT_EQ(library.iconFor(kOcean.themeID, kAtlas, {kAtlasIcon}), icons / (kAtlas + ".icns"));
    for (const char* bundleID : {"", "c", "folder", "link", "../Icons/b"})
        EXPECT_EQ(library.iconFor(kOcean.themeID, bundleID, {}), std::nullopt) << bundleID;
}

TEST_F(ThemeLibraryTest, RefusesNamesThatLeadElsewhereAreTakenOrAreNotThere) {
    put(icons / "taken.icns", "x");
    const FileTree before = tree();
    for (const std::string& id :
         Texts{"", "..", "../Themes/" + kOcean.themeID, kOcean.themeID + "/", "ABCDEFGH01234567", "abc"}) {
        for (const std::string& kind : kChanges)
            EXPECT_FALSE(change(library, kind, kAtlas, id)) << kind << id;
        EXPECT_THAT(library.icons(id), ElementsAre()) << id;
        EXPECT_EQ(library.iconFor(id, kAtlas, {}), std::nullopt) << id;
    }
    for (const std::string name : {".", "../b", "-b", "b\n"})
        for (const std::string& kind : std::span(kChanges).first(4))
            EXPECT_FALSE(change(library, kind, name)) << kind << name;
    EXPECT_EQ(library.renameIcon(kOcean.themeID, kAtlasIcon, "taken").error().description,
              "The theme has an icon for “taken” already");
    EXPECT_EQ(library.renameIcon(kOcean.themeID, "d.png", "e").error().description,
              "The theme has no icon “d.png”");
    EXPECT_TRUE(library.renameIcon(kOcean.themeID, kAtlasIcon, kAtlas));
    EXPECT_FALSE(library.create({kFresh.themeID, "a:b", {}}) || library.create(kOcean));
    EXPECT_FALSE(library.update(kFresh) || library.writeIcon(kFresh.themeID, kAtlas, bytesOf("x")));
    EXPECT_TRUE(library.removeIcon(kFresh.themeID, "b.png") && library.remove(kFresh.themeID));
    EXPECT_THAT(differences(before, tree()), ElementsAre());
}

TEST_F(ThemeLibraryTest, ReachesNothingThroughAPlantedLink) {
    const MacPath outside("/Outside");
    ASSERT_TRUE(disk.copy(library.path(), outside));
    const FileTree before = treeOf(disk, outside);
    const std::string theme = "/" + kOcean.themeID;
    for (const std::string& planted :
         {std::string(), theme, theme + "/Info.plist", theme + "/Icons", theme + "/Icons/" + kAtlasIcon}) {
        for (const std::string& kind : kChanges) {
            ASSERT_TRUE(disk.remove(library.path()));
            fill();
            const MacPath path(library.path().string() + planted);
            ASSERT_TRUE(disk.remove(path) && disk.createLink(path, outside.string() + planted));
            ignoreFailure(change(library, kind));
            library.removeLeftovers();
            EXPECT_EQ(treeOf(disk, outside), before) << planted << " before " << kind;
        }
    }
}

/// One operation of a change fails, or all from it on do, or the program is killed at it.
TEST_F(ThemeLibraryTest, EveryChangeLeavesTheOldOrTheNewWhereverItFailsOrIsKilled) {
    const FileTree before = tree();
    const auto restore = [&] { return disk.remove(library.path()) && (fill(), mac.files.forget(), true); };
    for (const std::string& kind : kChanges) {
        ASSERT_TRUE(restore() && change(library, kind));
        const FileTree after = tree();
        const std::size_t steps = mac.files.count();
        for (const int fault : {EIO, ENOSPC, 0}) {
            for (std::size_t step = 1; step <= steps && !HasFailure(); ++step) {
                SCOPED_TRACE(kind + (" fault " + std::to_string(fault)) + " at " + std::to_string(step));
                ASSERT_TRUE(restore());
                mac.files.setRule([&](const FileOperation& operation) -> std::optional<int> {
                    if (operation.number < step || (operation.number > step && fault == EIO))
                        return std::nullopt;
                    return fault == 0 ? throw Killed() : fault;
                });
                bool isDone = false;
                try {
                    isDone = bool(change(library, kind));
                } catch (const Killed&) {
                }
                mac.files.failNothing();
                EXPECT_FALSE(fault == EIO && disk.exists(library.folderOf(".new-" + kFresh.themeID)));
                EXPECT_THAT(library.load(), testing::Contains(kDesert));
                library.removeLeftovers();
                const FileTree found = tree();
                EXPECT_TRUE(found == after || (found == before && !isDone)) << testing::PrintToString(found);
                EXPECT_TRUE(found == after || change(library, kind)) << "cannot be repeated";
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
