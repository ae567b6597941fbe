#include "platform/practice/PracticeFileManager.h"

#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <cerrno>

namespace tavrik::practice {

namespace {

using testing::ElementsAre;

class PracticeFileManagerTest : public testing::Test {
protected:
    void put(const char* path, std::string_view content) {
        EXPECT_TRUE(m_files.write(MacPath(path), bytesOf(content))) << path;
    }

    std::string at(const char* path) { return std::string(textOf(*m_files.read(MacPath(path)))); }

    /// Every name, companions with their partner included.
    std::vector<std::string> allNames() { return *PosixFileManager(m_root.path()).list(MacPath("/")); }

    test::TemporaryFolder m_root;
    PracticeFileManager m_files{m_root.path()};
    MacPath m_a{"/a"};
    MacPath m_b{"/b"};
};

} // namespace

TEST_F(PracticeFileManagerTest, ListsNoCompanionWhosePartnerIsThere) {
    for (const char* path : {"/a", "/._a", "/._orphan", "/._", "/b.txt", "/._b"})
        put(path, "x");
    EXPECT_THAT(*m_files.list(MacPath("/")), ElementsAre("._", "._b", "._orphan", "a", "b.txt"));
}

TEST_F(PracticeFileManagerTest, TakesTheCompanionAlong) {
    put("/a", "content");
    put("/._a", "info");
    put("/._b", "left over");
    ASSERT_TRUE(m_files.copy(m_a, m_b));
    EXPECT_EQ(at("/._b"), "info");
    ASSERT_TRUE(m_files.remove(m_b));
    EXPECT_THAT(allNames(), ElementsAre("._a", "a"));

    ASSERT_TRUE(m_files.move(m_a, m_b));
    EXPECT_THAT(allNames(), ElementsAre("._b", "b"));
    EXPECT_EQ(at("/._b"), "info");

    put("/a", "newer");
    ASSERT_TRUE(m_files.replace(m_b, m_a)) << "without a companion of its own";
    EXPECT_THAT(allNames(), ElementsAre("b"));
    put("/a", "newest");
    put("/._a", "newest info");
    ASSERT_TRUE(m_files.replace(m_b, m_a));
    EXPECT_THAT(allNames(), ElementsAre("._b", "b"));
    EXPECT_EQ(at("/._b"), "newest info");
}

TEST_F(PracticeFileManagerTest, LeavesCompanionsAloneWhenNothingIsDone) {
    for (const char* path : {"/a", "/._a", "/b", "/._b", "/._gone"})
        put(path, path);
    EXPECT_FALSE(m_files.copy(m_a, m_b));
    EXPECT_FALSE(m_files.move(m_a, m_b));
    EXPECT_EQ(m_files.remove(MacPath("/gone")).error().code, ENOENT);
    EXPECT_EQ(at("/._a"), "/._a");
    EXPECT_EQ(at("/._b"), "/._b");
    EXPECT_EQ(at("/._gone"), "/._gone");

    // Long enough that there is room for the file but not for its companion.
    const MacPath tooLong("/" + std::string(254, 'n'));
    EXPECT_FALSE(m_files.copy(m_a, tooLong));
    EXPECT_FALSE(m_files.move(m_a, tooLong));
    EXPECT_THAT(allNames(), ElementsAre("._a", "._b", "._gone", "a", "b"));
}

} // namespace tavrik::practice
