#include "platform/SqliteCopy.h"

#include "support/FileTree.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

namespace tavrik::sqlite {

namespace {

/// A process of its own that has run some SQL and keeps its connection open until it is killed.
class OtherProcess {
public:
    OtherProcess(const HostPath& file, const char* sql) {
        int ready[2] = {-1, -1};
        EXPECT_EQ(::pipe(ready), 0);
        m_process = ::fork();
        if (m_process == 0) {
            auto connection = Connection::open(file, OpenMode::readWriteCreate);
            const char ran = connection && connection->execute(sql) ? 'y' : 'n';
            ignoreFailure(::write(ready[1], &ran, 1) == 1);
            ::pause();
            ::_exit(0);
        }
        ::close(ready[1]);
        char ran = 'n';
        EXPECT_TRUE(::read(ready[0], &ran, 1) == 1 && ran == 'y');
        ::close(ready[0]);
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

constexpr const char* kLogged = "PRAGMA journal_mode = WAL; PRAGMA wal_autocheckpoint = 0; CREATE TABLE t (a);"
                                "INSERT INTO t VALUES (1), (2)";
constexpr const char* kPlain = "CREATE TABLE t (a); CREATE INDEX i ON t (a); INSERT INTO t VALUES (1), (2)";

class SqliteCopy : public testing::Test {
protected:
    void run(const char* sql) {
        auto connection = Connection::open(m_file, OpenMode::readWriteCreate);
        ASSERT_TRUE(connection && connection->execute(sql)) << sql;
    }

    /// The sum of the column in a copy, which must have left the folder as it was.
    std::optional<std::int64_t> sumInCopy() {
        const Result<Bytes> bytes = copyLeavingAll();
        auto copy = bytes ? openCopy(*bytes) : bytes.error();
        EXPECT_TRUE(copy) << copy.error().description;
        if (!copy)
            return std::nullopt;
        EXPECT_TRUE(checkIntegrity(*copy));
        Statement sum = copy->prepare("SELECT sum(a) FROM t");
        return sum.step() == Step::row ? sum.int64(0) : std::nullopt;
    }

    /// Nothing but the index of a log, which is scratch memory of those who have it open, may change.
    Result<Bytes> copyLeavingAll() {
        const auto before = state();
        Result<Bytes> result = copyOf(m_file);
        EXPECT_EQ(state(), before);
        return result;
    }

    test::FileTree state() const {
        test::FileTree tree = test::treeOf(m_folder.path());
        if (const auto index = tree.find("db-shm"); index != tree.end())
            index->second.clear();
        return tree;
    }

    test::TemporaryFolder m_folder;
    const HostPath m_file = m_folder.path() / "db";
    const std::string m_log = m_file.string() + "-wal";
    const std::string m_index = m_file.string() + "-shm";
};

} // namespace

TEST_F(SqliteCopy, HoldsWhatIsCommittedInTheLogOfAnotherProcess) {
    {
        const OtherProcess other(m_file, kLogged);
        EXPECT_EQ(sumInCopy(), 3);
    }
    {
        const OtherProcess writing(m_file,
                                   "INSERT INTO t VALUES (4); BEGIN EXCLUSIVE; INSERT INTO t VALUES (8)");
        EXPECT_EQ(sumInCopy(), 7);
    }
    ASSERT_GT(std::filesystem::file_size(m_log), 0) << "left by the killed";
    EXPECT_EQ(sumInCopy(), 7);
    std::filesystem::remove(m_index);
    EXPECT_EQ(sumInCopy(), 7);
    run("INSERT INTO t VALUES (16)");
}

TEST_F(SqliteCopy, LeavesNothingBesideADatabaseThatNobodyHasOpen) {
    run(kPlain);
    EXPECT_EQ(sumInCopy(), 3);
    EXPECT_EQ((*copyOf(m_file))[18], 1);
    run("PRAGMA journal_mode = WAL");
    ASSERT_FALSE(std::filesystem::exists(m_log));
    EXPECT_EQ(sumInCopy(), 3);
    EXPECT_EQ((*copyOf(m_file))[18], 2) << "as in the original";
}

TEST_F(SqliteCopy, IsRefusedWhereThereIsNoDatabaseToRead) {
    const auto isRefused = [&] {
        const auto result = copyLeavingAll();
        return !result && !result.error().description.empty();
    };
    EXPECT_TRUE(isRefused()) << "missing";
    for (const std::string& content : {std::string(), std::string("SQLite"), std::string(4096, 'x')}) {
        std::ofstream(m_file.string(), std::ios::binary) << content;
        EXPECT_TRUE(isRefused()) << content.size() << " bytes";
    }
    std::filesystem::remove(m_file.string());
    run(kPlain);
    std::filesystem::resize_file(m_file.string(), 5000);
    EXPECT_TRUE(isRefused()) << "cut short";
    std::filesystem::remove(m_file.string());
    std::filesystem::create_directory(m_file.string());
    EXPECT_TRUE(isRefused()) << "a folder";
}

TEST_F(SqliteCopy, IsRefusedWhileAnotherHoldsTheDatabaseAlone) {
    run(kPlain);
    for (const char* sql :
         {"BEGIN EXCLUSIVE", "PRAGMA journal_mode = WAL; PRAGMA locking_mode = EXCLUSIVE; DELETE FROM t"}) {
        const OtherProcess other(m_file, sql);
        const auto result = copyLeavingAll();
        ASSERT_FALSE(result) << sql;
        EXPECT_EQ(result.error().description, "database is locked") << sql;
    }
}

TEST_F(SqliteCopy, OpensNoOtherBytesAndFindsWhatIsDamaged) {
    run(kPlain);
    const Bytes whole = *copyOf(m_file);
    for (const std::size_t size : {std::size_t{0}, std::size_t{100}, std::size_t{511}, whole.size() / 2})
        EXPECT_FALSE(openCopy(ByteView(whole).first(size))) << size;
    EXPECT_FALSE(openCopy(Bytes(whole.size(), 'x')));

    Bytes damaged = whole;
    damaged[whole.size() - 1] ^= 1; // an index entry's row number
    auto copy = openCopy(damaged);
    ASSERT_TRUE(copy);
    const Status checked = checkIntegrity(*copy);
    ASSERT_FALSE(checked);
    EXPECT_NE(checked.error().description.find("index i"), std::string::npos) << checked.error().description;
}

} // namespace tavrik::sqlite
