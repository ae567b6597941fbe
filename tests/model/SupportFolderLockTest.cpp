#include "model/SupportFolderLock.h"

#include "model/SettingsManager.h"
#include "support/SmallMac.h"
#include "support/WaitFor.h"

#include <gmock/gmock.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <future>

namespace tavrik {
namespace {

using testing::AllOf;
using testing::HasSubstr;

class SupportFolderLockTest : public testing::Test {
protected:
    SupportFolderLockTest() { ignoreFailure(small.files.createFolder(folder)); }

    auto take(const char* holder) { return SupportFolderLock::take(small.mac, folder, holder); }

    std::string content() { return std::string(textOf(*small.mac.files.read(file))); }

    test::SmallMac small;
    const MacPath folder = supportFolder(small.mac.volume);
    const MacPath file = folder / ".lock";
    const std::string me = " (process " + std::to_string(::getpid()) + ")";
};

TEST_F(SupportFolderLockTest, HoldsOffTheSecondAndNamesTheFirst) {
    {
        auto first = take("tavrikctl");
        ASSERT_TRUE(first) << first.error().description;
        const SupportFolderLock moved(std::move(*first));
        EXPECT_EQ(small.mac.files.attributes(file)->permissions, 0600u);
        EXPECT_THAT(take("Tavrik").error().description,
                    AllOf(HasSubstr("Nothing was changed"), HasSubstr("tavrikctl" + me + " is using")));
        EXPECT_EQ(content(), "tavrikctl" + me + "\n");
        ignoreFailure(small.files.write(file, bytesOf("\x1b[2J bad")));
        EXPECT_THAT(take("Tavrik").error().description, HasSubstr("another Tavrik is using"));
    }
    EXPECT_FALSE(small.files.exists(file));
    EXPECT_TRUE(take("Tavrik"));
}

TEST_F(SupportFolderLockTest, IsTakenOverFromAKilledHolder) {
    const pid_t child = ::fork();
    if (child == 0) {
        const auto held = take("a rather long name of some other program");
        ::pause();
        ::_exit(held ? 0 : 1);
    }
    ASSERT_TRUE(test::waitFor([&] { return small.files.exists(file) && content().ends_with(")\n"); }));
    EXPECT_THAT(take("tavrikctl").error().description, HasSubstr(std::to_string(child)));

    ::kill(child, SIGKILL);
    ASSERT_EQ(::waitpid(child, nullptr, 0), child);
    EXPECT_TRUE(small.files.exists(file)) << "nobody was there to remove it";
    const auto lock = take("tavrikctl");
    ASSERT_TRUE(lock) << lock.error().description;
    EXPECT_EQ(content(), "tavrikctl" + me + "\n");
}

TEST_F(SupportFolderLockTest, IsHeldByOneAtATime) {
    std::atomic<int> holders = 0;
    std::atomic<int> taken = 0;
    const auto contend = [&] {
        for (int round = 0; round < 300; ++round) {
            if (const auto lock = take("tavrikctl")) {
                EXPECT_EQ(++holders, 1);
                ++taken;
                --holders;
            }
        }
    };
    std::vector<std::future<void>> others(3);
    for (auto& other : others)
        other = std::async(std::launch::async, contend);
    contend();
    others.clear(); // waits
    EXPECT_GE(taken, 100);
    EXPECT_FALSE(small.files.exists(file));
}

TEST_F(SupportFolderLockTest, FollowsNoLinkAndNeedsARealFolder) {
    const MacPath precious = folder.parent() / "elsewhere/precious";
    ASSERT_TRUE(small.files.createFolder(precious.parent()) &&
                small.files.create(precious, bytesOf("precious")));
    ASSERT_TRUE(small.files.createLink(file, precious.string()));
    EXPECT_THAT(take("tavrikctl").error().description, HasSubstr(file.string() + " is not a plain file"));
    ASSERT_TRUE(small.files.remove(file) && small.files.createLink(file, "dangling"));
    EXPECT_FALSE(take("tavrikctl"));
    ASSERT_TRUE(small.files.remove(folder) && small.files.createLink(folder, precious.parent().string()));
    EXPECT_THAT(take("tavrikctl").error().description, HasSubstr("is not a folder of its own"));
    ASSERT_TRUE(small.files.remove(folder));
    EXPECT_THAT(take("tavrikctl").error().description, HasSubstr("No such file or directory"));

    EXPECT_EQ(textOf(*small.mac.files.read(precious)), "precious");
    EXPECT_EQ(small.files.list(precious.parent())->size(), 1u);
}

} // namespace
} // namespace tavrik
