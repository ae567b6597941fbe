#include "platform/Sqlite.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace tavrik::sqlite {

namespace {

class Sqlite : public testing::Test {
protected:
    Connection openFile() {
        auto connection = Connection::open(m_file, OpenMode::readWriteCreate);
        EXPECT_TRUE(connection);
        return std::move(*connection);
    }

    static std::int64_t count(Connection& connection) {
        Statement statement = connection.prepare("SELECT COUNT(*) FROM t");
        EXPECT_EQ(statement.step(), Step::row);
        return *statement.int64(0);
    }

    test::TemporaryFolder m_folder;
    const HostPath m_file = m_folder.path() / "db";
};

} // namespace

TEST_F(Sqlite, TellsNullFromEveryEmptyValue) {
    Connection connection = openFile();
    ASSERT_TRUE(connection.execute("CREATE TABLE t (a, b, c, d, e, f)"));
    Statement insert = connection.prepare("INSERT INTO t VALUES (?, ?, ?, ?, ?, ?)");
    ASSERT_TRUE(insert);
    insert.bind(1, std::string_view());
    insert.bind(2, ByteView());
    insert.bind(3, std::int64_t{1} << 40);
    insert.bind(4, std::optional<std::int32_t>());
    insert.bind(5, std::optional<std::int32_t>(-7));
    insert.bind(6, std::string_view("a\0b", 3));
    EXPECT_EQ(insert.step(), Step::done);

    Statement select = connection.prepare("SELECT * FROM t");
    ASSERT_EQ(select.step(), Step::row);
    EXPECT_EQ(select.text(0), "");
    EXPECT_EQ(select.blob(1), Bytes());
    EXPECT_EQ(select.int64(2), std::int64_t{1} << 40);
    EXPECT_EQ(select.int32(3), std::nullopt);
    EXPECT_EQ(select.text(3), std::nullopt);
    EXPECT_EQ(select.blob(3), std::nullopt);
    EXPECT_EQ(select.int32(4), -7);
    EXPECT_EQ(select.text(4), "-7");
    EXPECT_EQ(select.text(5), std::string("a\0b", 3));
    EXPECT_EQ(select.step(), Step::done);
}

TEST_F(Sqlite, OpensOnlyAsTheModeSays) {
    EXPECT_FALSE(Connection::open(m_file, OpenMode::readWrite));
    EXPECT_FALSE(Connection::open(m_file, OpenMode::readOnly));
    ASSERT_TRUE(openFile().execute("CREATE TABLE t (a)"));
    auto reader = Connection::open(m_file, OpenMode::readOnly);
    ASSERT_TRUE(reader);
    EXPECT_FALSE(reader->execute("INSERT INTO t VALUES (1)"));
    EXPECT_EQ(reader->lastErrorCode(), SQLITE_READONLY);
    EXPECT_FALSE(reader->prepare("SELECT missing FROM t"));
    EXPECT_EQ(reader->lastError(), "no such column: missing");
}

TEST_F(Sqlite, FailsAtOnceWhereAnotherConnectionHoldsTheLock) {
    Connection first = openFile();
    ASSERT_TRUE(first.execute("CREATE TABLE t (a)"));
    Connection second = openFile();
    const Transaction holder(first, "BEGIN EXCLUSIVE TRANSACTION");
    ASSERT_TRUE(holder.isOpen());
    Transaction late(second, "BEGIN EXCLUSIVE TRANSACTION");
    EXPECT_FALSE(late.isOpen());
    EXPECT_EQ(second.lastErrorCode(), SQLITE_BUSY);
    EXPECT_FALSE(late.commit());
}

TEST_F(Sqlite, RollsBackWhatIsNotCommittedOrCannotBe) {
    Connection connection = openFile();
    ASSERT_TRUE(connection.execute("PRAGMA foreign_keys = ON; CREATE TABLE p (id INTEGER PRIMARY KEY);"
                                   "CREATE TABLE t (p REFERENCES p DEFERRABLE INITIALLY DEFERRED)"));
    {
        const Transaction dropped(connection, "BEGIN");
        ASSERT_TRUE(connection.execute("INSERT INTO t VALUES (NULL)"));
    }
    EXPECT_EQ(count(connection), 0);
    Transaction failing(connection, "BEGIN");
    ASSERT_TRUE(connection.execute("INSERT INTO t VALUES (1)"));
    EXPECT_FALSE(failing.commit());
    EXPECT_FALSE(connection.inTransaction());
    EXPECT_EQ(count(connection), 0);

    Transaction kept(connection, "BEGIN");
    ASSERT_TRUE(connection.execute("INSERT INTO t VALUES (NULL)"));
    EXPECT_FALSE(Transaction(connection, "BEGIN").commit()) << "a second must leave the first alone";
    EXPECT_TRUE(kept.commit());
    EXPECT_FALSE(kept.isOpen());
    EXPECT_EQ(count(connection), 1);
}

TEST_F(Sqlite, ClosesTheConnectionThatAMoveReplaces) {
    Connection kept = openFile();
    ASSERT_TRUE(kept.execute("CREATE TABLE t (a); BEGIN EXCLUSIVE"));
    auto memory = Connection::openInMemory();
    ASSERT_TRUE(memory);
    ASSERT_TRUE(memory->execute("CREATE TABLE t (a)"));
    kept = std::move(*memory);
    EXPECT_EQ(count(kept), 0);
    EXPECT_TRUE(openFile().execute("BEGIN EXCLUSIVE"));
}

} // namespace tavrik::sqlite
