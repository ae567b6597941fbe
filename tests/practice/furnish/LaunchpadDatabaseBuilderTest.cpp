#include "practice/furnish/LaunchpadDatabaseBuilder.h"

#include "support/FileTree.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace tavrik::practice {

namespace {

using testing::ElementsAre;

/// Two pages: on the first A, B, C and D, on the second W and X.
struct LaunchpadDatabase : testing::Test {
    LaunchpadDatabase() {
        LaunchpadDatabaseBuilder builder(m_file);
        m_first = builder.addPage();
        m_second = builder.addPage();
        for (const char title : std::string("ABCDWX"))
            builder.addApp(title < 'W' ? m_first : m_second, {{title}, "org.example", Bytes{1}, {}, ""});
        EXPECT_TRUE(builder.finish());
        m_connection = sqlite::Connection::open(m_file, sqlite::OpenMode::readWrite);
    }

    /// "A0 B1": the applications of a page and their places.
    std::string places(LaunchpadRow page) {
        auto select = m_connection->prepare("SELECT title, ordering FROM items JOIN apps ON rowid = item_id "
                                            "WHERE parent_id = ? ORDER BY ordering, title");
        select.bind(1, static_cast<std::int64_t>(page));
        std::string text;
        while (select.step() == sqlite::Step::row)
            text += (text.empty() ? "" : " ") + *select.text(0) + std::to_string(*select.int32(1));
        return text;
    }

    std::string answer(const char* sql) {
        auto select = m_connection->prepare(sql);
        return select && select.step() == sqlite::Step::row ? select.text(0).value_or("NULL") : "nothing";
    }

    void run(const std::string& sql) {
        ASSERT_TRUE(m_connection->execute(sql.c_str())) << m_connection->lastError();
    }

    void place(const std::string& title, LaunchpadRow page, int ordering) {
        run("UPDATE items SET flags = 0, parent_id = " + std::to_string(static_cast<std::int64_t>(page)) +
            ", ordering = " + std::to_string(ordering) +
            " WHERE rowid = (SELECT item_id FROM apps WHERE title = '" + title + "')");
    }

    test::TemporaryFolder m_folder;
    HostPath m_file = m_folder.path() / "db";
    LaunchpadRow m_first{};
    LaunchpadRow m_second{};
    std::optional<sqlite::Connection> m_connection;
};

TEST_F(LaunchpadDatabase, IsSoundInWriteAheadModeAndLeavesNoJournal) {
    m_connection.reset();
    EXPECT_THAT(test::treeOf(m_folder.path()), ElementsAre(testing::Pair("db", testing::_)));
    m_connection = sqlite::Connection::open(m_file, sqlite::OpenMode::readWrite);
    for (const auto& [question, expected] :
         {std::pair("PRAGMA integrity_check", "ok"),
          {"PRAGMA journal_mode", "wal"},
          {"SELECT value FROM dbinfo WHERE key = 'ignore_items_update_triggers'", "0"},
          {"SELECT count(*) FROM items WHERE type < 4 AND rowid NOT IN (SELECT item_id FROM groups)", "0"}})
        EXPECT_EQ(answer(question), expected);
}

TEST_F(LaunchpadDatabase, TriggersMoveTheNeighboursUnlessSwitchedOff) {
    for (const auto& [ignore, expected] :
         {std::pair("1", "A0 W1 C2 D3 / B0 X1"), {"0", "A1 C1 D2 W3 / X0 B1"}}) {
        run("SAVEPOINT before");
        run(std::string("UPDATE dbinfo SET value='") + ignore + "' WHERE key='ignore_items_update_triggers'");
        place("B", m_second, 0);
        place("W", m_first, 1);
        EXPECT_EQ(places(m_first) + " / " + places(m_second), expected) << ignore;
        run("ROLLBACK TO before; RELEASE before");
    }
}

TEST_F(LaunchpadDatabase, TriggersPlaceNewRowsLastAndCloseTheGapOfRemovedOnes) {
    const std::string page = std::to_string(static_cast<std::int64_t>(m_second));
    run("INSERT INTO items (uuid, flags, type, parent_id, ordering) VALUES ('', 0, 4, " + page + ", 0)");
    run("INSERT INTO apps (item_id, title) VALUES (last_insert_rowid(), 'Y')");
    EXPECT_EQ(places(m_second), "W0 X1 Y2");

    run("DELETE FROM items WHERE rowid = (SELECT item_id FROM apps WHERE title = 'B')");
    EXPECT_EQ(places(m_first), "A0 C1 D2");
    EXPECT_EQ(answer("SELECT count(*) FROM apps") + answer("SELECT count(*) FROM image_cache"), "66");
}

} // namespace

} // namespace tavrik::practice
