#include "system/LaunchpadLayout.h"

#include "platform/Sqlite.h"
#include "practice/furnish/LaunchpadSchema.h"

#include <gtest/gtest.h>

namespace tavrik {
namespace {

using Application = LaunchpadLayout::Application;
using Folder = LaunchpadLayout::Folder;

struct Layout : testing::Test {
    Layout() {
        run(practice::kLaunchpadSchema);
        run("INSERT OR REPLACE INTO dbinfo VALUES ('ignore_items_update_triggers', '1')");
    }

    void run(const std::string& sql) {
        ASSERT_TRUE(m_database->execute(sql.c_str())) << m_database->lastError();
    }

    std::optional<sqlite::Connection> m_database = sqlite::Connection::openInMemory();
};

TEST_F(Layout, IsWhatStandsOnTheShownPagesInOrder) {
    run("INSERT INTO items VALUES (1, 'ROOTPAGE', NULL, 1, 0, 0), (2, 'HOLDINGPAGE', 2, 3, 1, 0),"
        "  (5, 'ROOTPAGE_VERS', NULL, 1, 0, 1), (6, 'HOLDINGPAGE_VERS', 2, 3, 5, 0), (7, 'a', 2, 3, 1, 3),"
        "  (8, 'b', 2, 3, 1, 1), (9, 'empty', 2, 3, 1, 2), (10, 'folder', 0, 2, 8, 4), (11, 'c', 2, 3, 10, 1),"
        "  (12, 'd', 2, 3, 10, 0), (13, 'no page', 0, 2, 8, 9), (14, 'page of an old root', 2, 3, 5, 7);"
        "INSERT INTO items VALUES (21, 'u', 0, 4, 8, 5), (22, 'u', 128, 4, 8, 4), (23, 'u', NULL, 4, 7, -3),"
        "  (24, 'u', 0, 4, 11, 2), (25, 'u', 0, 4, 12, 0), (26, 'held', 0, 4, 2, 0), (27, 'not shown', 0, 4, "
        "6, 0),"
        "  (28, 'no details', 0, 4, 8, 0), (29, 'downloading', 0, 5, 8, 0), (30, 'lost', 0, 4, 999, 0),"
        "  (31, 'of an old root', 0, 4, 14, 0), (32, 'itself', 0, 2, 32, 0);"
        "INSERT INTO groups VALUES (10, NULL, 'Wörk'), (32, NULL, 'Loop');"
        "INSERT INTO apps (item_id, title, bundleid) VALUES (21, 'Safari', 'com.apple.Safari'),"
        "  (22, NULL, ' padded '), (23, '𝐁old', NULL), (24, 'Two', 'x.two'), (25, 'One', 'x.one'),"
        "  (26, 'h', 'h'), (27, 'v', 'v'), (29, 'loading', 'l'), (30, 'lost', 'lost'), (31, 'old', 'old')");
    const LaunchpadLayout expected{
        {{Folder{RowID{10}, "Wörk", {{{RowID{25}, "One", "x.one"}}, {{RowID{24}, "Two", "x.two"}}}},
          Application{RowID{22}, "", " padded ", true}, Application{RowID{21}, "Safari", "com.apple.Safari"},
          Folder{RowID{13}, "", {}}},
         {Application{RowID{23}, "𝐁old", ""}}}};
    EXPECT_EQ(readLaunchpadLayout(*m_database), expected);

    run("INSERT INTO dbinfo VALUES ('launchpad_root', '5')");
    EXPECT_EQ(readLaunchpadLayout(*m_database)->pages.size(), 2u) << "another root, with two pages";
    for (const char* root : {"0", "", "-1", "text"}) {
        run(std::string("UPDATE dbinfo SET value='") + root + "' WHERE key='launchpad_root'");
        EXPECT_EQ(readLaunchpadLayout(*m_database), expected) << root;
    }
}

TEST_F(Layout, IsNothingWithoutTheTablesAndEmptyWithoutRows) {
    EXPECT_EQ(readLaunchpadLayout(*m_database), LaunchpadLayout());
    for (const char* table : {"groups", "apps", "dbinfo", "items"}) {
        run("SAVEPOINT whole");
        run(std::string("DROP TABLE ") + table);
        EXPECT_EQ(readLaunchpadLayout(*m_database), std::nullopt) << table;
        run("ROLLBACK TO whole; RELEASE whole");
    }
    EXPECT_EQ(readLaunchpadLayout(*m_database), LaunchpadLayout());
    EXPECT_FALSE(m_database->inTransaction());
}

} // namespace
} // namespace tavrik
