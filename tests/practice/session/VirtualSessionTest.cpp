#include "practice/session/VirtualSession.h"

#include "platform/Sqlite.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PracticeFileManager.h"
#include "practice/dock/Dock.h"
#include "support/practice/PracticeVolume.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <optional>

namespace tavrik::practice {
namespace {

using namespace std::chrono_literals;

struct VirtualSessionTest : testing::Test {
    VirtualSessionTest() {
        EXPECT_TRUE(files.createFolder(wrapper));
        EXPECT_TRUE(files.createLink(wrapper / "Contents", "/Applications/Ferrule.app/Contents"));
        EXPECT_TRUE(writeDockBehaviour(volume.root(), {.restartDelay = 0.4, .indexDelay = 4.0}));
        session.emplace(volume.root(), clock);
        EXPECT_EQ(run(kLaunchServicesTool, {"-f", wrapper.string()}), 0);
    }

    int run(const MacPath& tool, const std::vector<std::string>& arguments) {
        const auto result = session->run(tool, arguments);
        return result ? result->exitStatus : -result.error().code;
    }

    bool isIndexed() const {
        const auto rows = volume.appRows("org.example.ferrule");
        return std::ranges::find(rows, wrapper, &test::LaunchpadItem::path) != rows.end();
    }

    test::PracticeVolume volume;
    PracticeFileManager files{volume.root()};
    RecordingClock clock;
    std::optional<VirtualSession> session;
    const MacPath wrapper = kHome / "Applications/Tavrik/Ferrule.app";
    const MacPath killall{"/usr/bin/killall"};
};

TEST_F(VirtualSessionTest, AKilledDockNeverIndexesAndTheNextOneBeginsAnew) {
    clock.sleep(3s);
    EXPECT_EQ(run(killall, {"Dock"}), 0);
    EXPECT_FALSE(session->dockRuns());
    EXPECT_EQ(run(killall, {"Dock"}), 1);
    clock.sleep(399ms);
    EXPECT_FALSE(session->dockRuns());
    clock.sleep(1ms);
    EXPECT_TRUE(session->dockRuns());
    clock.sleep(3'999ms);
    EXPECT_FALSE(isIndexed());
    clock.sleep(1ms);
    EXPECT_TRUE(isIndexed());
}

TEST_F(VirtualSessionTest, LooksAgainEachSecondWhileTheDatabaseIsLocked) {
    auto writer = sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite);
    ASSERT_TRUE(writer && writer->execute("BEGIN IMMEDIATE TRANSACTION"));
    clock.sleep(5'500ms);
    ASSERT_TRUE(writer->execute("COMMIT"));
    clock.sleep(499ms);
    EXPECT_FALSE(isIndexed());
    clock.sleep(1ms);
    EXPECT_TRUE(isIndexed());
}

TEST_F(VirtualSessionTest, NothingComesOfWhatItScheduledOnceItIsGone) {
    EXPECT_EQ(run(killall, {"Dock"}), 0);
    session.reset();
    clock.sleep(1min);
    EXPECT_FALSE(isIndexed());
}

} // namespace
} // namespace tavrik::practice
