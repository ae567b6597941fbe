#include "practice/session/Session.h"

#include "platform/FileManager.h"
#include "platform/PathRules.h"
#include "platform/Tools.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PracticeMac.h"
#include "platform/practice/PropertyListFile.h"
#include "practice/dock/Dock.h"
#include "practice/process/ProcessRecord.h"
#include "practice/session/DockProcess.h"
#include "support/WaitFor.h"
#include "support/practice/PracticeVolume.h"

#include <gmock/gmock.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string>

namespace tavrik::practice {
namespace {

using test::waitFor;
using ::testing::HasSubstr;
using ::testing::SizeIs;

struct SessionTest : testing::Test {
    SessionTest() { EXPECT_TRUE(writeDockBehaviour(root, {.restartDelay = 0.05, .indexDelay = 0.1})); }

    std::vector<int> docks() const { return liveProcesses(root, "Dock"); }

    int run(const MacPath& tool, const std::vector<std::string>& arguments) {
        const auto result = mac.mac().tools.run(tool, arguments);
        return result ? result->exitStatus : -1;
    }

    bool dockOtherThan(int number) const {
        return waitFor([&] { return docks().size() == 1 && docks().front() != number; });
    }

    test::PracticeVolume volume{{.tool = HostPath(PRACTICE_TOOL), .dock = HostPath(PRACTICE_DOCK)}};
    const HostPath root = volume.root();
    PracticeMac mac{root};
    FileManager& files = mac.mac().files;
    const MacPath killall{"/usr/bin/killall"};
    const MacPath preferences = dockPreferencesPath(kHome);
};

TEST_F(SessionTest, RestartsAKilledDockWhichSavesNothingAndEndsItWithItself) {
    std::optional<Session> session(root);
    ASSERT_THAT(docks(), SizeIs(1)) << "a session begins with its Dock running";
    const plist::Value changed(plist::Dictionary{{"autohide", true}});
    ASSERT_TRUE(writePropertyList(files, preferences, changed));

    const int before = docks().front();
    EXPECT_EQ(run(killall, {"-HUP", "Dock"}), 0);
    ASSERT_TRUE(dockOtherThan(before));
    EXPECT_EQ(volume.dockPreferences(), changed);

    session.reset();
    EXPECT_TRUE(std::filesystem::is_empty(volume.host(kProcessFolder).string()));
    EXPECT_EQ(run(killall, {"Dock"}), 1);
}

TEST_F(SessionTest, IndexesWhatTheRealToolsRegistered) {
    const MacPath wrapper = kHome / "Applications/Tavrik/Ferrule.app";
    const MacPath contents("/Applications/Ferrule.app/Contents");
    ASSERT_TRUE(files.createFolder(wrapper));
    EXPECT_EQ(run(MacPath("/bin/ln"), {"-s", contents.string(), (wrapper / "Contents").string()}), 0);
    EXPECT_EQ(run(kLaunchServicesTool, {"-f", wrapper.string()}), 0);
    const Session session(root);
    EXPECT_TRUE(waitFor([&] {
        const auto rows = volume.appRows("org.example.ferrule");
        return std::ranges::find(rows, wrapper, &test::LaunchpadItem::path) != rows.end();
    }));
}

TEST_F(SessionTest, LeavesNoDockBehindWhenItsProgramIsKilled) {
    const pid_t program = ::fork();
    if (program == 0) {
        const Session session(root);
        ::pause();
        ::_exit(0);
    }
    EXPECT_TRUE(waitFor([&] { return docks().size() == 1; }));
    ASSERT_EQ(::kill(program, SIGKILL), 0);
    ::waitpid(program, nullptr, 0);
    EXPECT_TRUE(waitFor([&] { return docks().empty(); })) << "still runs: " << docks().front();

    const Session next(root);
    EXPECT_THAT(docks(), SizeIs(1));
}

TEST_F(SessionTest, OfTwoKeepersTheSecondTakesOverFromTheFirst) {
    std::optional<Session> first(root);
    ASSERT_THAT(docks(), SizeIs(1));
    const int dock = docks().front();
    const Session second(root);
    ASSERT_THAT(docks(), testing::ElementsAre(dock));
    first.reset();
    EXPECT_TRUE(dockOtherThan(dock));
}

TEST_F(SessionTest, GivesUpADockThatFailsAtEveryStart) {
    ASSERT_TRUE(files.remove(kDockProgram) && writeDockBehaviour(root, {.restartDelay = 0}));
    testing::internal::CaptureStderr();
    std::optional<Session>(root).reset();
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr(root.string() + " fails at every start"));
}

TEST_F(SessionTest, TheDockSavesItsPreferencesOnlyWhenToldToQuit) {
    for (const bool polite : {false, true}) {
        Lifeline lifeline;
        DockProcess dock;
        const plist::Value before = volume.dockPreferences();
        ASSERT_TRUE(dock.start(root, lifeline));
        EXPECT_TRUE(waitFor([&] { return docks().size() == 1; }));
        EXPECT_FALSE(polite && lifeline.writing.writeAll(bytesOf("q")));
        EXPECT_FALSE(lifeline.writing.close());
        EXPECT_TRUE(dock.wait());
        EXPECT_EQ(*volume.dockPreferences().find<std::int64_t>("mod-count"),
                  *before.find<std::int64_t>("mod-count") + (polite ? 1 : 0));
        EXPECT_THAT(docks(), SizeIs(0));
    }
}

} // namespace
} // namespace tavrik::practice
