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

TEST_F(AtomicFile, MakesANewFileCompleteAndFlushedOrNotAtAll) {
    const MacPath made{"/made.png"};
    const FileTree before = treeOf(folder.path());
    for (std::size_t step = 1; step <= 4; ++step) {
        files.failAt(step, EIO);
        EXPECT_EQ(createAtomically(files, made, bytesOf("new")).error().code, EIO);
        EXPECT_THAT(differences(before, treeOf(folder.path())), ElementsAre()) << "step " << step;
    }
    {
        const SmallDisk full(1000);
        EXPECT_FALSE(createAtomically(disk, made, Bytes(1001)));
    }
    EXPECT_THAT(differences(before, treeOf(folder.path())), ElementsAre());

    ASSERT_TRUE(disk.write(MacPath("/made.png.new"), bytesOf("of a killed one")));
    files.failNothing();
    files.forget();
    ASSERT_TRUE(createAtomically(files, made, bytesOf("new")));
    EXPECT_EQ(textOf(*disk.read(made)), "new");
    EXPECT_THAT(files.journal(), testing::IsSupersetOf({"flush /made.png.new", "move /made.png", "flush /"}));
    EXPECT_THAT(differences(before, treeOf(folder.path())), ElementsAre("+ made.png"));
}

TEST_F(AtomicFile, NeverMakesANewFileWhereAnythingIs) {
    const MacPath link{"/link.plist"};
    ASSERT_TRUE(disk.createLink(link, "nowhere"));
    ASSERT_TRUE(disk.createFolder(MacPath("/folder")));
    const FileTree before = treeOf(folder.path());
    for (const MacPath& taken : {file, link, MacPath("/folder")})
        EXPECT_EQ(createAtomically(files, taken, bytesOf("new")).error().code, EEXIST) << taken.string();
    EXPECT_THAT(differences(before, treeOf(folder.path())), ElementsAre());
}

} // namespace tavrik::test
