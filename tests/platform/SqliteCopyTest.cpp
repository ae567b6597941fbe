#include "platform/SqliteCopy.h"

#include "support/FileTree.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

namespace tavrik::sqlite {
namespace {

/// A process of its own that has run some SQL and stands still, its connection open, until it is killed.
class OtherProcess {
public:
    OtherProcess(const HostPath& file, const char* sql) {
        if (m_process = ::fork(); m_process == 0) {
            auto connection = Connection::open(file, OpenMode::readWriteCreate);
            ::raise(connection && connection->execute(sql) ? SIGSTOP : SIGKILL);
        }
        int status = 0;
        EXPECT_EQ(::waitpid(m_process, &status, WUNTRACED), m_process);
        EXPECT_TRUE(WIFSTOPPED(status)) << sql;
    }

    ~OtherProcess() {
        ::kill(m_process, SIGKILL);
        ::waitpid(m_process, nullptr, 0);
    }

    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

private:
    pid_t m_process = -1;
};

class SqliteCopy : public testing::Test {
protected:
    void run(const char* sql) {
        auto connection = Connection::open(m_file, OpenMode::readWriteCreate);
        ASSERT_TRUE(connection && connection->execute(sql)) << sql;
    }

    /// Which must leave the folder as it was, but for the index of a log, the scratch memory of all who read.
    Result<Bytes> copy() {
        const auto withoutIndex = [this] {
            auto tree = test::treeOf(m_folder.path());
            if (tree.contains("db-shm"))
                tree["db-shm"].clear();
            return tree;
        };
        const auto before = withoutIndex();
        Result<Bytes> result = copyOf(m_file);
        EXPECT_EQ(withoutIndex(), before);
        return result;
    }

    std::optional<std::int64_t> sumInCopy() {
        const auto bytes = copy();
        auto database = bytes ? openCopy(*bytes) : bytes.error();
        if (!database || !checkIntegrity(*database))
            return std::nullopt;
        Statement sum = database->prepare("SELECT sum(a) FROM t");
        return sum.step() == Step::row ? sum.int64(0) : std::nullopt;
    }

    test::TemporaryFolder m_folder;
    const HostPath m_file = m_folder.path() / "db";
    const std::string m_name = m_file.string();
    static constexpr const char* kPlain =
        "CREATE TABLE t (a); CREATE INDEX i ON t (a); INSERT INTO t VALUES (1), (2)";
};

TEST_F(SqliteCopy, HoldsWhatIsCommittedInTheLogOfAnotherProcess) {
    run(kPlain);
    {
        const OtherProcess other(m_file, "PRAGMA journal_mode = WAL; INSERT INTO t VALUES (4); BEGIN EXCLUSIVE;"
                                         "INSERT INTO t VALUES (8)");
        EXPECT_EQ(sumInCopy(), 7);
    }
    ASSERT_GT(std::filesystem::file_size(m_name + "-wal"), 0) << "left by the killed";
    EXPECT_EQ(sumInCopy(), 7);
    std::filesystem::remove(m_name + "-shm");
    EXPECT_EQ(sumInCopy(), 7);
    run("INSERT INTO t VALUES (16)"); // nothing stays locked
}

TEST_F(SqliteCopy, LeavesNothingBesideADatabaseThatNobodyHasOpen) {
    run(kPlain);
    EXPECT_EQ(sumInCopy(), 3);
    EXPECT_EQ((*copy())[18], 1);
    run("PRAGMA journal_mode = WAL");
    EXPECT_EQ(sumInCopy(), 3);
    EXPECT_EQ((*copy())[18], 2) << "the mode of the original";
    ASSERT_FALSE(std::filesystem::exists(m_name + "-wal"));
}

TEST_F(SqliteCopy, IsRefusedWhereThereIsNoDatabaseOrAnotherHasItAlone) {
    EXPECT_FALSE(copy()) << "missing";
    for (const std::string& content : {std::string(), std::string("SQLite"), std::string(4096, 'x')}) {
        std::ofstream(m_name) << content;
        EXPECT_FALSE(copy()) << content.size() << " bytes";
    }
    std::filesystem::remove(m_name);
    run(kPlain);
    for (const char* sql : {"BEGIN EXCLUSIVE", "PRAGMA journal_mode = WAL; PRAGMA locking_mode = EXCLUSIVE;"
                                               "DELETE FROM t"}) {
        const OtherProcess other(m_file, sql);
        EXPECT_EQ(copy().error().description, "database is locked") << sql;
    }
}

TEST_F(SqliteCopy, OpensNoOtherBytesAndFindsWhatIsDamaged) {
    run(kPlain);
    const Bytes whole = *copyOf(m_file);
    for (const std::size_t size : {std::size_t{0}, std::size_t{100}, std::size_t{511}, whole.size() / 2})
        EXPECT_FALSE(openCopy(ByteView(whole).first(size))) << size;
    Bytes damaged = whole;
    damaged[whole.size() - 1] ^= 1; // an index entry's row number
    auto copy = openCopy(damaged);
    ASSERT_TRUE(copy);
    EXPECT_THAT(checkIntegrity(*copy).error().description, testing::HasSubstr("index i"));
}

} // namespace
} // namespace tavrik::sqlite
