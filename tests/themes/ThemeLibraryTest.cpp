#include "themes/ThemeLibrary.h"

#include "platform/PropertyList.h"
#include "platform/Random.h"
#include "support/FileTree.h"
#include "support/LogRecorder.h"
#include "support/SmallMac.h"
#include "themes/ThemeError.h"

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

const std::string kAtlas = "com.example.atlas";
const Theme kOcean{.themeID = "abcdefgh01234567", .name = "Ocean", .createdDate = {700'000'000.25}};
const Theme kDesert{.themeID = "zzzz000000000000", .name = "Desert 🏜️", .createdDate = {1.5}};

Bytes bytes(std::string_view text) {
    const ByteView view = bytesOf(text);
    return {view.begin(), view.end()};
}

/// A Mac with a library of two themes, the first of them with an icon.
struct LibraryStage {
    LogRecorder log;
    SmallMac mac;
    FileManager& disk{mac.practice.mac().files}; ///< never fails
    ThemeLibrary library{mac.mac};

    LibraryStage() { fill(); }

    void fill() {
        // Not by the library: it waits for the disk at each step.
        for (const Theme& theme : {kOcean, kDesert}) {
            put(library.folderOf(theme.themeID) / "Info.plist", textOf(*encodeTheme(theme)));
            EXPECT_TRUE(disk.createFolder(library.iconsOf(theme.themeID)));
        }
        put(library.iconsOf(kOcean.themeID) / (kAtlas + ".png"), "blue");
    }

    FileTree tree() const { return treeOf(disk, library.path().parent()); }

    std::string content(const std::string& themeID, const std::string& fileName) const {
        const auto read = disk.read(library.iconsOf(themeID) / fileName);
        return read ? std::string(textOf(*read)) : std::string();
    }

    void put(const MacPath& file, std::string_view text) {
        ASSERT_TRUE(disk.createFolder(file.parent()));
        ASSERT_TRUE(disk.write(file, bytesOf(text)));
    }
};

struct ThemeLibraryTest : testing::Test, LibraryStage {};

struct Change {
    const char* name;
    std::function<Status(ThemeLibrary&)> run;
};

const std::vector<Change> kChanges{
    {"create",
     [](ThemeLibrary& library) {
         return library.create({"1111111111111111", "New", {}},
                               {{kAtlas + ".png", bytes("1")}, {"b.icns", bytes("2")}});
     }},
    {"update", [](ThemeLibrary& library) { return library.update({kOcean.themeID, "Sea", {}}); }},
    {"write",
     [](ThemeLibrary& library) { return library.writeIcon(kOcean.themeID, kAtlas, bytesOf("green")); }},
    {"rename", [](ThemeLibrary& library) { return library.renameIcon(kOcean.themeID, kAtlas + ".png", "b"); }},
    {"removeIcon", [](ThemeLibrary& library) { return library.removeIcon(kOcean.themeID, kAtlas + ".png"); }},
    {"remove", [](ThemeLibrary& library) { return library.remove(kOcean.themeID); }},
};

FileTree treeAfter(const Change& change) {
    LibraryStage stage;
    EXPECT_TRUE(change.run(stage.library));
    return stage.tree();
}

} // namespace

TEST(ThemeName, IsTrimmedAndThenHeldAgainstTheRules) {
    const std::string family = "👨‍👩‍👧‍👦";
    std::string fifty;
    for (int i = 0; i < 50; ++i)
        fifty += i % 2 == 0 ? family : "é";
    const std::string forbidden = "/\\:*?\"<>|\n\x7F";
    for (const std::string& name : {std::string("Ocean"), std::string(50, 'a'), fifty, std::string("a.b"),
                                    std::string("ÄÖ 🏜️ 中"), std::string("-")})
        EXPECT_TRUE(isValidThemeName(trimmedThemeName(" \t\n\u3000" + name + "\u00A0 "))) << name;
    for (const std::string& name :
         {std::string(), std::string(" \u2003"), std::string(51, 'a'), fifty + "a", std::string(".a"),
          std::string("a."), std::string(". "), std::string("a\xFF"), "a" + std::string(3, '\0'),
          "a" + std::string(5'000, '\xCC')})
        EXPECT_FALSE(isValidThemeName(trimmedThemeName(name))) << name;
    for (const char character : forbidden)
        EXPECT_FALSE(isValidThemeName(std::string("a") + character + "b")) << character;
    EXPECT_EQ(trimmedThemeName("\r\n a  b\u00A0"), "a  b");
}

TEST(ThemeID, IsDrawnUniformlyFromItsAlphabet) {
    struct Counting : Random {
        std::uint8_t next = 0;

        Bytes bytes(std::size_t count) override {
            Bytes all(count);
            for (std::uint8_t& byte : all)
                byte = next++;
            return all;
        }
    } random;

    std::map<char, int> counts;
    for (int i = 0; i < 63; ++i) { // 63 ids of 16 take all bytes four times
        const std::string id = drawThemeID(random);
        EXPECT_TRUE(isThemeID(id)) << id;
        for (const char character : id)
            ++counts[character];
    }
    EXPECT_EQ(counts.size(), 36u);
    EXPECT_THAT(counts, testing::Each(testing::Field(&std::pair<const char, int>::second, 28)));
}

TEST_F(ThemeLibraryTest, LoadsWhatItWroteAndSkipsWhatIsNoTheme) {
    const auto put = [&](const std::string& folder, const plist::Value& record) {
        this->put(library.folderOf(folder) / "Info.plist",
                  textOf(*plist::serialize(record, plist::Format::xml)));
    };
    const auto record = [](const std::string& id, const plist::Value& name, const plist::Value& date) {
        return plist::Dictionary{{"themeID", id}, {"name", name}, {"createdDate", date}, {"more", 1}};
    };
    const std::string good = "good000000000000";
    put(good, record(good, " Good ", Date{5}));
    put("bad1000000000000", record("../../../../etc/", "x", Date{5}));
    put("bad2000000000000", record(kOcean.themeID, "x", Date{5}));
    put("bad3000000000000", record("bad3000000000000", "a/b", Date{5}));
    put("bad4000000000000", record("bad4000000000000", 7, Date{5}));
    put("bad5000000000000", record("bad5000000000000", "x", "yesterday"));
    this->put(library.folderOf("bad6000000000000") / "Info.plist", std::string(kLargestThemeRecord + 1, ' '));
    this->put(library.folderOf("bad7000000000000") / "Info.plist", "bplist00");
    put("Copy of a theme", record(good, "x", Date{5}));
    ASSERT_TRUE(disk.createFolder(library.folderOf("norecord00000000")));
    ASSERT_TRUE(disk.createLink(library.folderOf("link000000000000"), good));
    put(".new-" + good, record(good, "x", Date{5}));
    this->put(library.path() / "file000000000000", "x");

    log.clear();
    EXPECT_THAT(library.load(), ElementsAre(kOcean, Theme{good, "Good", {5}}, kDesert));
    EXPECT_TRUE(log.has("15 items in themes directory"));
    EXPECT_EQ(log.lines().size(), 9u) << "a line for each record that is refused, and none for the rest";
}

TEST_F(ThemeLibraryTest, SaysWhyThereIsNoLibrary) {
    const std::string path = library.path().string();
    mac.files.failOn("list", library.path(), EIO);
    EXPECT_THAT(library.load(), ElementsAre());
    EXPECT_TRUE(log.mentions("Error loading themes: " + path));
    mac.files.failNothing();

    ASSERT_TRUE(disk.move(library.path(), MacPath("/Elsewhere")));
    EXPECT_THAT(library.load(), ElementsAre());
    EXPECT_TRUE(log.has("Themes directory does not exist at: " + path));

    for (const bool isLink : {true, false}) {
        log.clear();
        ASSERT_TRUE(isLink ? disk.createLink(library.path(), "/Elsewhere") : disk.create(library.path(), {}));
        EXPECT_THAT(library.load(), ElementsAre());
        EXPECT_TRUE(log.has("Themes path exists but is not a directory: " + path));
        EXPECT_FALSE(library.createFolder());
        for (const Change& change : kChanges)
            EXPECT_FALSE(change.run(library)) << change.name;
        library.removeLeftovers();
        ASSERT_TRUE(disk.remove(library.path()));
    }
    ASSERT_TRUE(disk.move(MacPath("/Elsewhere"), library.path()));
    EXPECT_EQ(tree(), LibraryStage().tree());
}

TEST_F(ThemeLibraryTest, PrefersThePngAndPassesOverTheHiddenAndTheImpossible) {
    const MacPath folder = library.iconsOf(kOcean.themeID);
    for (const std::string& name : {kAtlas + ".icns", std::string("b.icns"), std::string("c.jpg"),
                                    std::string("d.png.new"), std::string(".png"), std::string("e.PNG")})
        put(folder / name, "x");
    ASSERT_TRUE(disk.createFolder(folder / "folder.png"));
    ASSERT_TRUE(disk.createLink(folder / "link.png", kAtlas + ".png"));
    EXPECT_THAT(library.icons(kOcean.themeID),
                ElementsAre(ThemeIcon{"b", folder / "b.icns"}, ThemeIcon{kAtlas, folder / (kAtlas + ".png")}));

    const auto iconFor = [&](const std::string& bundleID, const std::set<std::string>& hidden) {
        const auto file = library.iconFor(kOcean.themeID, bundleID, hidden);
        return file ? file->name() : std::string();
    };
    EXPECT_EQ(iconFor(kAtlas, {"b.icns"}), kAtlas + ".png");
    EXPECT_EQ(iconFor(kAtlas, {kAtlas + ".png"}), kAtlas + ".icns");
    EXPECT_EQ(iconFor(kAtlas, {kAtlas + ".png", kAtlas + ".icns"}), "");
    for (const char* bundleID : {"", "c", "folder", "link", "../Icons/b", "../../"})
        EXPECT_EQ(iconFor(bundleID, {}), "") << bundleID;
}

TEST_F(ThemeLibraryTest, RefusesEveryNameThatLeadsElsewhere) {
    const FileTree before = tree();
    for (const std::string& id : {std::string(), std::string("."), std::string(".."), "../" + kOcean.themeID,
                                  kOcean.themeID + "/", std::string("ABCDEFGH01234567"), std::string("abc")}) {
        SCOPED_TRACE(id);
        EXPECT_FALSE(library.create({id, "x", {}}));
        EXPECT_FALSE(library.update({id, "x", {}}));
        EXPECT_FALSE(library.writeIcon(id, kAtlas, bytesOf("x")));
        EXPECT_FALSE(library.renameIcon(id, kAtlas + ".png", "b"));
        EXPECT_FALSE(library.removeIcon(id, kAtlas + ".png"));
        EXPECT_FALSE(library.remove(id));
        EXPECT_THAT(library.icons(id), ElementsAre());
        EXPECT_EQ(library.iconFor(id, kAtlas, {}), std::nullopt);
    }
    const Theme fresh{"2222222222222222", "x", {}};
    for (const std::string& name : {std::string(), std::string("."), std::string("a/b"), std::string("../b"),
                                    std::string("-b"), std::string("b\n"), std::string("b\0c", 3)}) {
        SCOPED_TRACE(name);
        EXPECT_FALSE(library.create(fresh, {{name + ".png", {}}}));
        EXPECT_FALSE(library.writeIcon(kOcean.themeID, name, bytesOf("x")));
        EXPECT_FALSE(library.renameIcon(kOcean.themeID, kAtlas + ".png", name));
        EXPECT_FALSE(library.removeIcon(kOcean.themeID, name + ".png"));
    }
    EXPECT_FALSE(library.removeIcon(kOcean.themeID, "../Info.plist"));
    EXPECT_FALSE(library.create({fresh.themeID, "a:b", {}}));
    EXPECT_FALSE(library.create(kOcean)) << "in use";
    EXPECT_FALSE(library.update(fresh)) << "there is none";
    EXPECT_FALSE(library.writeIcon(fresh.themeID, kAtlas, bytesOf("x")));
    EXPECT_TRUE(library.removeIcon(fresh.themeID, "b.png"));
    EXPECT_TRUE(library.remove(fresh.themeID));
    EXPECT_THAT(differences(before, tree()), ElementsAre());
}

TEST_F(ThemeLibraryTest, GivesAnIconToAnotherApplicationUnlessThatHasOne) {
    const MacPath folder = library.iconsOf(kOcean.themeID);
    put(folder / "b.icns", "b");
    put(folder / "c.png", "c");
    EXPECT_EQ(library.renameIcon(kOcean.themeID, "c.png", "b").error().description,
              "The theme has an icon for “b” already");
    EXPECT_EQ(library.renameIcon(kOcean.themeID, "b.icns", "a/b").error().description,
              "“a/b” cannot name an icon");
    EXPECT_EQ(library.renameIcon(kOcean.themeID, "d.png", "e").error().description,
              "The theme has no icon “d.png”");
    EXPECT_TRUE(library.renameIcon(kOcean.themeID, "c.png", "c"));
    EXPECT_TRUE(library.renameIcon(kOcean.themeID, "b.icns", "d"));
    EXPECT_EQ(content(kOcean.themeID, "d.icns") + content(kOcean.themeID, "c.png"), "bc");
}

TEST_F(ThemeLibraryTest, NothingIsReachedThroughAPlantedLink) {
    put(MacPath("/Outside/Icons/") / (kAtlas + ".png"), "theirs");
    put(MacPath("/Outside/Info.plist"), "theirs");
    const FileTree outside = treeOf(disk, MacPath("/Outside"));
    const MacPath icon = library.iconsOf(kOcean.themeID) / (kAtlas + ".png");
    const MacPath record = library.folderOf(kOcean.themeID) / "Info.plist";
    for (const MacPath& planted : {icon, record, icon.parent(), record.parent()}) {
        for (const Change& change : kChanges) {
            SCOPED_TRACE(planted.string() + " before " + change.name);
            ASSERT_TRUE(disk.remove(library.path()));
            fill();
            ASSERT_TRUE(disk.remove(planted));
            const std::string below = planted.string().substr(record.parent().string().size());
            ASSERT_TRUE(disk.createLink(planted, "/Outside" + below));
            ignoreFailure(change.run(library));
            library.removeLeftovers();
            EXPECT_EQ(treeOf(disk, MacPath("/Outside")), outside);
        }
    }
}

TEST(ThemeLibrary, EveryChangeLeavesTheOldOrTheNewWhateverFails) {
    const FileTree before = LibraryStage().tree();
    for (const Change& change : kChanges) {
        const FileTree after = treeAfter(change);
        for (const auto& [times, code] : {std::pair(Times::once, EIO), std::pair(Times::forGood, ENOSPC)}) {
            bool reached = true;
            for (std::size_t step = 1; reached && !testing::Test::HasFailure(); ++step) {
                SCOPED_TRACE(change.name + std::string(" failed at ") + std::to_string(step));
                LibraryStage stage;
                const std::size_t count = stage.mac.files.count();
                stage.mac.files.failAt(step, code, times);
                const Status done = change.run(stage.library);
                reached = stage.mac.files.count() - count >= step;
                stage.mac.files.failNothing();
                if (times == Times::once) {
                    EXPECT_FALSE(stage.disk.exists(stage.library.path() / ".new-1111111111111111"));
                }
                stage.library.removeLeftovers();
                const FileTree found = stage.tree();
                EXPECT_TRUE(found == after || (!done && found == before)) << testing::PrintToString(found);
                EXPECT_TRUE(change.run(stage.library) || found == after) << "cannot be repeated";
                stage.library.removeLeftovers();
                EXPECT_EQ(stage.tree(), after);
            }
        }
    }
}

TEST(ThemeLibrary, EveryChangeLeavesTheOldOrTheNewWhereverItIsKilled) {
    const FileTree before = LibraryStage().tree();
    for (const Change& change : kChanges) {
        const FileTree after = treeAfter(change);
        bool killed = true;
        for (std::size_t step = 1; killed && !testing::Test::HasFailure(); ++step) {
            SCOPED_TRACE(change.name + std::string(" killed before ") + std::to_string(step));
            LibraryStage stage;
            const pid_t child = ::fork();
            ASSERT_GE(child, 0);
            if (child == 0) {
                const std::size_t last = stage.mac.files.count() + step;
                stage.mac.files.setRule([last](const FileOperation& operation) -> std::optional<int> {
                    if (operation.number == last)
                        ::kill(::getpid(), SIGKILL);
                    return std::nullopt;
                });
                ignoreFailure(change.run(stage.library));
                ::_exit(0);
            }
            int status = 0;
            ASSERT_EQ(::waitpid(child, &status, 0), child);
            killed = WIFSIGNALED(status);
            EXPECT_THAT(stage.library.load(), testing::Contains(kDesert));
            stage.library.removeLeftovers();
            const FileTree found = stage.tree();
            EXPECT_TRUE(found == after || found == before) << testing::PrintToString(found);
            EXPECT_TRUE(change.run(stage.library) || found == after) << "cannot be repeated";
            EXPECT_EQ(stage.tree(), after);
        }
    }
}

TEST_F(ThemeLibraryTest, LeavesWhatIsNotItsOwnWhenItClearsAway) {
    for (const char* name : {".DS_Store", ".new-mine", ".deleted-", "notes.new", "abcdefgh01234567/mine.new",
                             "abcdefgh01234567/Icons/mine.txt.new", "abcdefgh01234567/Icons/.x.png.new"})
        put(library.path() / name, "theirs");
    ASSERT_TRUE(disk.createFolder(library.iconsOf(kOcean.themeID) / "b.png.new"));
    const FileTree before = tree();
    put(library.path() / ".new-1111111111111111/Icons/a.png", "x");
    put(library.path() / ".deleted-abcdefgh01234567/Info.plist", "x");
    put(library.iconsOf(kOcean.themeID) / "a.png.new", "x");
    put(library.folderOf(kOcean.themeID) / "Info.plist.new", "x");
    library.removeLeftovers();
    EXPECT_THAT(differences(before, tree()), ElementsAre());
}

} // namespace tavrik::test
