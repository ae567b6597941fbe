#include "practice/picture/LaunchpadLayout.h"

#include "platform/PosixFileManager.h"
#include "platform/Sqlite.h"
#include "support/FileTree.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <filesystem>

using namespace tavrik;
using namespace tavrik::practice;
using testing::ElementsAre;
using testing::SizeIs;

namespace {

/// Two pages and a folder of two pages; the rows stand in no particular order.
constexpr const char* kContent =
    "CREATE TABLE dbinfo (key VARCHAR, value VARCHAR);"
    "CREATE TABLE items (rowid INTEGER PRIMARY KEY, uuid, flags, type INTEGER, parent_id INTEGER, ordering);"
    "CREATE TABLE apps (item_id INTEGER PRIMARY KEY, title VARCHAR, bundleid VARCHAR, bookmark BLOB);"
    "INSERT INTO dbinfo VALUES ('launchpad_root', '7');"
    "CREATE TABLE groups (item_id INTEGER PRIMARY KEY, title VARCHAR);"
    "INSERT INTO groups VALUES (30, 'T');"
    "INSERT INTO items VALUES (7,'ROOTPAGE',NULL,1,0,0), (8,'HOLDINGPAGE',2,3,7,0), (11,'b',2,3,7,2), "
    "(10,'a',2,3,7,1), (20,'',0,4,10,1), (21,'',NULL,4,10,0), (30,'',1,2,10,2), (31,'',2,3,30,1), "
    "(32,'',2,3,30,0), (22,'',0,4,31,0), (23,'',0,4,32,5), (24,'',0,4,11,3), (25,'',0,4,8,0);"
    "INSERT INTO apps VALUES (20,'B','x.b',NULL), (21,'A','x.a',NULL), (22,'L','x.l',NULL), "
    "(23,'I','x.i',NULL), (24,'O','x.o',NULL), (25,'H','x.h',NULL);";

/// A volume with a database made by hand.
struct SmallLaunchpad {
    test::TemporaryFolder folder;
    PosixFileManager files{folder.path()};
    HostPath database = folder.path() / "db";
    std::optional<sqlite::Connection> connection =
        sqlite::Connection::open(database, sqlite::OpenMode::readWriteCreate);

    explicit SmallLaunchpad(const char* journal = "PRAGMA journal_mode = DELETE") {
        for (const char* sql : {"PRAGMA synchronous = OFF", journal, kContent})
            run(sql);
    }

    void run(const char* sql) { ASSERT_TRUE(connection->execute(sql)) << connection->lastError(); }

    /// One line for each item: an application's title, or a folder's with those in it in brackets.
    std::vector<std::string> shown(std::size_t mostPages = 9) const {
        const auto layout = readLaunchpadLayout(files, database, mostPages);
        if (!layout)
            return {"error"};
        std::vector<std::string> lines;
        for (const auto& page : layout->pages) {
            std::string& line = lines.emplace_back();
            for (const LaunchpadItem& item : page) {
                if (const auto* app = std::get_if<LaunchpadApp>(&item)) {
                    line += app->title + " ";
                    continue;
                }
                const auto& inner = std::get<LaunchpadFolder>(item);
                line += inner.title + "[ ";
                for (const auto& innerPage : inner.pages) {
                    for (const LaunchpadApp& app : innerPage)
                        line += app.title + " ";
                    line += "| ";
                }
                line += "] ";
            }
        }
        lines.insert(lines.end(), layout->pagesLeftOut, "left out");
        return lines;
    }
};

} // namespace

TEST(LaunchpadLayout, FollowsTheOrderOfPagesFoldersAndItems) {
    const SmallLaunchpad launchpad;
    EXPECT_THAT(launchpad.shown(), ElementsAre("A B T[ I | L | ] ", "O "));
    EXPECT_THAT(launchpad.shown(1), ElementsAre("A B T[ I | L | ] ", "left out"));
}

TEST(LaunchpadLayout, ShowsWhatAPersonWouldSee) {
    const std::pair<const char*, std::vector<std::string>> cases[] = {
        {"UPDATE items SET flags = 129 WHERE rowid = 20", {"A T[ I | L | ] ", "O "}},
        {"UPDATE items SET flags = 128 WHERE rowid = 20; "
         "UPDATE apps SET bundleid = 'COM.apple.x' WHERE item_id = 20",
         {"A B T[ I | L | ] ", "O "}},
        // The folder stands before the second page, so its row is the one that is shown.
        {"UPDATE apps SET bundleid = ' X.I ' WHERE item_id = 24", {"A B T[ I | L | ] ", ""}},
        {"UPDATE apps SET bundleid = 'x.l' WHERE item_id = 20", {"A B T[ I | | ] ", "O "}},
        // A hidden row does not stand in the way of a shown one.
        {"UPDATE items SET flags = 128 WHERE rowid = 21; "
         "UPDATE apps SET bundleid = 'x.a' WHERE item_id = 24",
         {"B T[ I | L | ] ", "O "}},
        {"DELETE FROM dbinfo; UPDATE items SET rowid = 1 WHERE rowid = 7; "
         "UPDATE items SET parent_id = 1 WHERE parent_id = 7",
         {"A B T[ I | L | ] ", "O "}},
        {"UPDATE items SET ordering = NULL, flags = 'x', uuid = 5 WHERE rowid = 20",
         {"B A T[ I | L | ] ", "O "}},
        {"DROP TABLE groups", {"A B [ I | L | ] ", "O "}},
        {"UPDATE items SET parent_id = rowid WHERE type IN (2, 3)", {}},
        {"DROP TABLE items", {"error"}},
    };
    for (const auto& [change, pages] : cases) {
        SmallLaunchpad launchpad;
        launchpad.run(change);
        EXPECT_EQ(launchpad.shown(), pages) << change;
    }
}

TEST(LaunchpadLayout, ReadsTheLogOfADatabaseWithoutTouchingAnything) {
    SmallLaunchpad launchpad("PRAGMA journal_mode = WAL");
    namespace fs = std::filesystem;
    for (const auto& companions :
         {std::vector<const char*>{"-wal", "-shm"}, std::vector<const char*>{"-wal"}, {}}) {
        // As a killed process leaves the files, and as people copy them.
        const test::TemporaryFolder copies;
        const HostPath copy = copies.path() / "db";
        fs::copy_file(launchpad.database.string(), copy.string());
        for (const char* ending : companions)
            fs::copy_file(launchpad.database.string() + ending, copy.string() + ending);
        auto before = test::treeOf(copies.path());
        const auto layout = readLaunchpadLayout(launchpad.files, copy, 9);
        auto after = test::treeOf(copies.path());
        // Locks of readers live in the shared-memory file.
        before.erase("db-shm");
        after.erase("db-shm");
        EXPECT_THAT(test::differences(before, after), ElementsAre());
        EXPECT_EQ(layout && layout->pages.size() == 2, !companions.empty());
    }
    EXPECT_THAT(launchpad.shown(), SizeIs(2)); // and beside a writer that has it open
    launchpad.connection.reset();
    const auto before = test::treeOf(launchpad.folder.path());
    EXPECT_THAT(launchpad.shown(), SizeIs(2));
    EXPECT_THAT(test::differences(before, test::treeOf(launchpad.folder.path())), ElementsAre());
}
