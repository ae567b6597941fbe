#include "platform/PosixFileManager.h"

#include "support/SmallDisk.h"
#include "support/TemporaryFolder.h"
#include "support/contracts/FileManagerContract.h"

namespace tavrik::test {

namespace {

using testing::ElementsAre;

/// A volume in a folder of the host, or the host's own, as on a real Mac.
template<bool isHost>
struct Adapter {
    TemporaryFolder folder;
    PosixFileManager manager{isHost ? HostPath("/") : folder.path()};

    FileManager& files() { return manager; }

    MacPath base() const { return MacPath(isHost ? folder.path().string() : "/"); }
};

class PosixFileManagerTest : public testing::Test {
protected:
    TemporaryFolder host;
    HostPath volume = host.path() / "volume";
    PosixFileManager outside{host.path()};
    PosixFileManager files{volume};

    PosixFileManagerTest() { EXPECT_TRUE(outside.createFolder(MacPath("/volume/a/b"))); }
};

} // namespace

using Adapters = testing::Types<Adapter<false>, Adapter<true>>;
INSTANTIATE_TYPED_TEST_SUITE_P(Posix, FileManagerContract, Adapters);

TEST_F(PosixFileManagerTest, NoPathAndNoLinkLeadsOutOfTheVolume) {
    ASSERT_TRUE(outside.write(MacPath("/secret"), bytesOf("outside")));
    ASSERT_TRUE(files.write(MacPath("/secret"), bytesOf("inside")));
    const std::string hostSecret = (host.path() / "secret").string();
    const char* const targets[] = {
        "/secret",  "/../secret",      "../../../../../secret", "/a/b/../../../secret",
        "//secret", "/./..//../secret"};
    for (const char* target : targets) {
        ASSERT_TRUE(files.createLink(MacPath("/a/b/link"), target));
        const auto content = files.read(MacPath("/a/b/link"));
        EXPECT_TRUE(content && textOf(*content) == "inside") << target;
        EXPECT_EQ(*files.resolveLinks(MacPath("/a/b/link")), MacPath("/secret")) << target;
        ASSERT_TRUE(files.remove(MacPath("/a/b/link")));
    }
    EXPECT_TRUE(files.exists(MacPath("/../../secret")));
    ASSERT_TRUE(files.createLink(MacPath("/escape"), hostSecret));
    EXPECT_FALSE(files.exists(MacPath("/escape")));
    EXPECT_EQ(files.read(MacPath("secret")).error().code, EINVAL);
}

TEST_F(PosixFileManagerTest, WalksAsTheSystemDoes) {
    ASSERT_TRUE(files.write(MacPath("/file"), {}));
    ASSERT_TRUE(files.createLink(MacPath("/to-file"), "file"));
    for (const char* path : {"/file/.", "/file/..", "/to-file/../a"})
        EXPECT_EQ(files.resolveLinks(MacPath(path)).error().code, ENOTDIR) << path;
    for (const char* path : {"/missing/..", "/missing/../a", "/a/missing/b"})
        EXPECT_EQ(files.resolveLinks(MacPath(path)).error().code, ENOENT) << path;

    ASSERT_TRUE(files.createLink(MacPath("/1"), "a"));
    for (int i = 2; i <= 41; ++i)
        ASSERT_TRUE(files.createLink(MacPath("/" + std::to_string(i)), std::to_string(i - 1)));
    EXPECT_EQ(*files.resolveLinks(MacPath("/40/b")), MacPath("/a/b"));
    EXPECT_EQ(files.resolveLinks(MacPath("/41/b")).error().code, ELOOP);
}

TEST_F(PosixFileManagerTest, KnowsWhatIsAtTheEndOfEveryWay) {
    ASSERT_TRUE(files.createLink(MacPath("/top"), "/"));
    ASSERT_TRUE(files.createLink(MacPath("/up"), "a//b/../"));
    for (const char* path : {"/", "/..", "/a/.", "/a/b/..", "/top", "/top/a", "/up"}) {
        const auto there = files.attributes(MacPath(path));
        EXPECT_TRUE(there && there->type == FileType::folder) << path;
    }
    EXPECT_EQ(*files.resolveLinks(MacPath("/up/b")), MacPath("/a/b"));
    EXPECT_EQ(*PosixFileManager(HostPath("/")).resolveLinks(MacPath("/")), MacPath("/"));
}

TEST_F(PosixFileManagerTest, NothingIsLeftOfWhatDoesNotFitOnTheDisk) {
    EXPECT_EQ(files.write(MacPath("/tree/large"), {}).error().code, ENOENT);
    ASSERT_TRUE(files.createFolder(MacPath("/tree")));
    const Bytes large(100'000, 'x');
    ASSERT_TRUE(files.write(MacPath("/tree/large"), large));
    const FileTree before = treeOf(volume);
    {
        const SmallDisk full(50'000);
        EXPECT_EQ(files.create(MacPath("/created"), large).error().code, EFBIG);
        EXPECT_EQ(files.copy(MacPath("/tree/large"), MacPath("/copy")).error().code, EFBIG);
        EXPECT_EQ(files.copy(MacPath("/tree"), MacPath("/copy")).error().code, EFBIG);
    }
    EXPECT_THAT(differences(before, treeOf(volume)), ElementsAre());
}

TEST_F(PosixFileManagerTest, ACopyStartsAnewOverWhatAKillLeft) {
    const MacPath stray(std::string("/copy") + PosixFileManager::kUnfinishedCopy);
    ASSERT_TRUE(files.createFolder(stray / "half"));
    ASSERT_TRUE(files.copy(MacPath("/a"), MacPath("/copy")));
    EXPECT_THAT(*files.list(MacPath("/")), ElementsAre("a", "copy"));
    EXPECT_THAT(*files.list(MacPath("/copy")), ElementsAre("b"));
}

TEST_F(PosixFileManagerTest, NeverWaitsForAPipeAndDoesNotCopyOne) {
    ASSERT_EQ(::mkfifo((volume / "a/pipe").string().c_str(), 0600), 0);
    const FileTree before = treeOf(volume);
    EXPECT_EQ(files.read(MacPath("/a/pipe")).error().code, EINVAL);
    EXPECT_EQ(files.write(MacPath("/a/pipe"), bytesOf("x")).error().code, ENXIO);
    EXPECT_FALSE(files.copy(MacPath("/a"), MacPath("/copy")));
    EXPECT_THAT(differences(before, treeOf(volume)), ElementsAre());
    EXPECT_TRUE(files.remove(MacPath("/a")));
}

TEST_F(PosixFileManagerTest, KeepsTheRightToRunACopiedProgram) {
    ASSERT_TRUE(files.write(MacPath("/program"), bytesOf("#!/bin/sh")));
    ASSERT_EQ(::chmod((volume / "program").string().c_str(), 04755), 0);
    ASSERT_TRUE(files.copy(MacPath("/program"), MacPath("/copy")));
    EXPECT_EQ(files.attributes(MacPath("/copy"))->permissions, 0700u);
    ASSERT_TRUE(files.write(MacPath("/program"), bytesOf("#!/bin/bash")));
    EXPECT_EQ(files.attributes(MacPath("/program"))->permissions & 0777u, 0755u);
}

} // namespace tavrik::test
