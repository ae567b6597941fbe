#include "platform/AtomicFile.h"

#include "platform/PosixFileManager.h"
#include "support/FailingFileManager.h"
#include "support/FileTree.h"
#include "support/SmallDisk.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

namespace tavrik::test {

namespace {

using testing::ElementsAre;

class AtomicFile : public testing::Test {
protected:
    TemporaryFolder folder;
    PosixFileManager disk{folder.path()};
    FailingFileManager files{disk};
    const MacPath file{"/list.plist"};
    const MacPath fresh{"/list.plist.new"};

    AtomicFile() { EXPECT_TRUE(disk.write(file, bytesOf("old"))); }

    std::string content() { return std::string(textOf(*disk.read(file))); }
};

} // namespace

TEST_F(AtomicFile, FlushesTheNewContentBeforeItTakesTheOldOnesPlace) {
    ASSERT_TRUE(writeAtomically(files, file, bytesOf("new")));
    EXPECT_EQ(content(), "new");
    EXPECT_THAT(files.journal(),
                ElementsAre("create /list.plist.new", "flush /list.plist.new", "replace /list.plist"));
    EXPECT_THAT(*disk.list(MacPath("/")), ElementsAre("list.plist"));
}

TEST_F(AtomicFile, LeavesTheOldContentAndNothingElseWhicheverStepFails) {
    const FileTree before = treeOf(folder.path());
    for (std::size_t step = 1; step <= 3; ++step) {
        files.failAt(step, EIO);
        EXPECT_EQ(writeAtomically(files, file, bytesOf("new")).error().code, EIO);
        EXPECT_THAT(differences(before, treeOf(folder.path())), ElementsAre()) << "step " << step;
    }
    {
        const SmallDisk full(1000);
        EXPECT_FALSE(writeAtomically(disk, file, Bytes(1001)));
    }
    EXPECT_THAT(differences(before, treeOf(folder.path())), ElementsAre());
}

TEST_F(AtomicFile, ClearsAwayWhatAKilledWriteLeft) {
    ASSERT_TRUE(disk.write(MacPath("/victim"), bytesOf("precious")));
    ASSERT_TRUE(disk.createLink(fresh, "victim"));
    ASSERT_TRUE(writeAtomically(files, file, bytesOf("new")));
    ASSERT_TRUE(disk.write(fresh, bytesOf("half a")));
    ASSERT_TRUE(writeAtomically(files, file, bytesOf("newer")));

    EXPECT_EQ(content(), "newer");
    EXPECT_EQ(textOf(*disk.read(MacPath("/victim"))), "precious");
    EXPECT_THAT(*disk.list(MacPath("/")), ElementsAre("list.plist", "victim"));
}

TEST_F(AtomicFile, DoesNotRemoveAFolderThatHasTheTemporarysName) {
    ASSERT_TRUE(disk.createFolder(fresh / "full"));
    EXPECT_EQ(writeAtomically(files, file, bytesOf("new")).error().code, EEXIST);
    EXPECT_EQ(content(), "old");
    EXPECT_TRUE(disk.exists(fresh / "full"));
}

} // namespace tavrik::test
