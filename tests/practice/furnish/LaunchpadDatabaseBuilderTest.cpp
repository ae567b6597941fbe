#include "practice/furnish/LaunchpadDatabaseBuilder.h"

#include "practice/furnish/LargeDatabase.h"
#include "support/TemporaryFolder.h"
#include "support/practice/PracticeVolume.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace tavrik::practice {

namespace {

using testing::ElementsAre;

/// Two pages: on the first A, B, C and D, on the second W and X.
class LaunchpadDatabase : public testing::Test {
protected:
    void SetUp() override {
        LaunchpadDatabaseBuilder builder(m_file);
        m_first = builder.addPage();
        m_second = builder.addPage();
        for (const char* title : {"A", "B", "C", "D"})
            builder.addApp(m_first,
                           {title, std::string("org.example.") + title, Bytes{1}, {}, "public.example"});
        for (const char* title : {"W", "X"})
            builder.addApp(m_second,
                           {title, std::string("org.example.") + title, Bytes{1}, {}, "public.example"});
        const Status finished = builder.finish();
        ASSERT_TRUE(finished) << finished.error().description;
        m_connection = sqlite::Connection::open(m_file, sqlite::OpenMode::readWrite);
        ASSERT_TRUE(m_connection);
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

    std::string rowOf(const std::string& title) {
        return "(SELECT item_id FROM apps WHERE title = '" + title + "')";
    }

    void place(const std::string& title, LaunchpadRow page, int ordering) {
        run("UPDATE items SET flags = 0, parent_id = " + std::to_string(static_cast<std::int64_t>(page)) +
            ", ordering = " + std::to_string(ordering) + " WHERE rowid = " + rowOf(title));
    }

    test::TemporaryFolder m_folder;
    HostPath m_file = m_folder.path() / "db";
    LaunchpadRow m_first{};
    LaunchpadRow m_second{};
    std::optional<sqlite::Connection> m_connection;
};

TEST_F(LaunchpadDatabase, IsSoundInWriteAheadModeAndLeavesNoJournal) {
    m_connection.reset();
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(m_folder.path().string()))
        names.push_back(entry.path().filename().string());
    EXPECT_THAT(names, ElementsAre("db"));

    m_connection = sqlite::Connection::open(m_file, sqlite::OpenMode::readWrite);
    EXPECT_EQ(answer("PRAGMA integrity_check"), "ok");
    EXPECT_EQ(answer("PRAGMA journal_mode"), "wal");
    EXPECT_EQ(answer("SELECT value FROM dbinfo WHERE key = 'ignore_items_update_triggers'"), "0");
    EXPECT_EQ(answer("SELECT count(*) FROM image_cache"), "6");
    EXPECT_EQ(answer("SELECT count(*) FROM items WHERE type < 4 AND rowid NOT IN (SELECT item_id FROM groups)"),
              "0");
}

TEST_F(LaunchpadDatabase, TriggersMoveTheNeighboursUnlessSwitchedOff) {
    const struct {
        const char* ignore;
        const char* first;
        const char* second;
    } cases[] = {
        {"1", "A0 W1 C2 D3", "B0 X1"},
        {"0", "A1 C1 D2 W3", "X0 B1"},
    };

    for (const auto& expected : cases) {
        run("SAVEPOINT before");
        run(std::string("UPDATE dbinfo SET value='") + expected.ignore +
            "' WHERE key='ignore_items_update_triggers'");
        place("B", m_second, 0);
        place("W", m_first, 1);
        EXPECT_EQ(places(m_first), expected.first) << expected.ignore;
        EXPECT_EQ(places(m_second), expected.second) << expected.ignore;
        run("ROLLBACK TO before; RELEASE before");
    }
}

TEST_F(LaunchpadDatabase, TriggersPlaceNewRowsLastAndCloseTheGapOfRemovedOnes) {
    const std::string page = std::to_string(static_cast<std::int64_t>(m_second));
    run("INSERT INTO items (uuid, flags, type, parent_id, ordering) VALUES ('', 0, 4, " + page + ", 0)");
    run("INSERT INTO apps (item_id, title) VALUES (last_insert_rowid(), 'Y')");
    EXPECT_EQ(places(m_second), "W0 X1 Y2");

    run("DELETE FROM items WHERE rowid = " + rowOf("B"));
    EXPECT_EQ(places(m_first), "A0 C1 D2");
    EXPECT_EQ(answer("SELECT count(*) FROM apps"), "6");
    EXPECT_EQ(answer("SELECT count(*) FROM image_cache"), "6");
}

TEST_F(LaunchpadDatabase, IsNeverBuiltOverAnother) {
    m_connection.reset();
    LaunchpadDatabaseBuilder second(m_file);
    second.addApp(second.addPage(), {"Z", "org.example.z", {}, {}, ""});
    EXPECT_FALSE(second.finish());
    m_connection = sqlite::Connection::open(m_file, sqlite::OpenMode::readWrite);
    EXPECT_EQ(places(m_first), "A0 B1 C2 D3");
}

TEST(LargeDatabase, HasRowsOfTheirOwnOverTheBundlesOfTheVolume) {
    const test::PracticeVolume volume;
    const Status written =
        writeLargeDatabase(volume.root(), volume.launchpadDatabase(), 80, TitleStyle::styled);
    ASSERT_TRUE(written) << written.error().description;
    std::vector<int> pages;
    std::set<std::string> identifiers;
    for (const test::LaunchpadItem& item : volume.launchpadItems()) {
        if (item.type == 3 && item.parent == 1 && item.row != 2)
            pages.push_back(0);
        if (item.type != 4)
            continue;
        ++pages.back();
        identifiers.insert(item.bundleID);
        EXPECT_TRUE(std::filesystem::exists(volume.host(item.path).string())) << item;
    }
    EXPECT_THAT(pages, ElementsAre(35, 35, 10));
    EXPECT_EQ(identifiers.size(), 80u);
    EXPECT_EQ(volume.appRows("org.example.large.n000001").at(0).title, "𝐌𝐚𝐢𝐥 000001");
}

} // namespace

} // namespace tavrik::practice
