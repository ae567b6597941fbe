#include "practice/tools/SystemTools.h"

#include "platform/practice/CustomIcon.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PracticeFileManager.h"
#include "platform/practice/PropertyListFile.h"
#include "practice/process/ProcessRecord.h"
#include "support/TemporaryFolder.h"
#include "support/WaitFor.h"

#include <gmock/gmock.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace tavrik::practice {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Pair;

constexpr Date kNow{794'000'000.25};

struct SystemToolsTest : testing::Test {
    SystemToolsTest() {
        EXPECT_TRUE(files.createFolder(MacPath("/Applications/Atlas.app/Contents")));
        EXPECT_TRUE(files.create(MacPath("/Applications/Atlas.app/Contents/Info.plist"), {}));
    }

    ToolAnswer run(const std::string& tool, const std::vector<std::string>& arguments) {
        return runSystemTool({folder.path(), kNow,
                              [this](const std::string& name, int signal) {
                                  signals.emplace_back(name, signal);
                                  return name == "Dock" ? 1 : 0;
                              }},
                             MacPath(tool), arguments);
    }

    std::vector<std::string> listed(const MacPath& list) {
        std::vector<std::string> paths;
        if (const auto content = readPropertyList(files, list); content && *content)
            for (const plist::Value& path : *(*content)->as<plist::Array>())
                paths.push_back(*path.as<std::string>());
        return paths;
    }

    test::TemporaryFolder folder;
    PracticeFileManager files{folder.path()};
    std::vector<std::pair<std::string, int>> signals;
};

TEST_F(SystemToolsTest, AnswersFailuresAsTheMacDoes) {
    struct Case {
        std::string tool;
        std::vector<std::string> arguments;
        std::string errors;
        int exitStatus = 1;
    };

    const std::string info = "com.apple.FinderInfo";
    const std::string file = "/Applications/Atlas.app/Contents/Info.plist";
    const Case cases[] = {
        {"/usr/bin/touch", {"/no/where"}, "touch: /no/where: No such file or directory\n"},
        {"/usr/bin/killall", {"Finder"}, "No matching processes belonging to you were found\n"},
        {"/usr/bin/killall", {"-NONE", "Dock"}, "usage: killall"},
        {"/usr/bin/chflags", {"hidden", "/no"}, "chflags: /no: No such file or directory\n"},
        {"/bin/ln", {"-s", "/a", file}, "ln: " + file + ": File exists\n"},
        {"/usr/bin/xattr", {"-w", info, std::string(64, '0'), file}, "xattr: [Errno 34] Result too large: "},
        {"/usr/bin/xattr", {"-wx", info, "0g", file}, "non-hexadecimal"},
        {"/usr/bin/xattr", {"-p", info, file}, "xattr: " + file + ": No such xattr: com.apple.FinderInfo\n"},
        {kLaunchServicesTool.string(), {"-f", file}, "failed to scan " + file + ": error -10811"},
        {"/usr/bin/make", {}, "command not found", 127},
    };
    for (const Case& each : cases) {
        const ToolAnswer answer = run(each.tool, each.arguments);
        EXPECT_EQ(answer.exitStatus, each.exitStatus) << each.tool << " " << each.errors;
        EXPECT_THAT(answer.errors, HasSubstr(each.errors)) << each.tool;
        EXPECT_EQ(answer.output, "");
    }
    EXPECT_EQ(readFinderInfo(files, MacPath(file)), std::nullopt);
}

TEST_F(SystemToolsTest, TouchMakesAFileAndDatesWhatIsThereWithoutChangingIt) {
    const MacPath old("/Applications/old");
    ASSERT_TRUE(files.write(old, bytesOf("content")));
    ASSERT_TRUE(files.setModified(old, Date{1}));
    EXPECT_EQ(run("/usr/bin/touch", {old.string(), "/Applications/new", "/Applications/Atlas.app"}).exitStatus,
              0);
    EXPECT_EQ(textOf(*files.read(old)), "content");
    for (const char* path : {"/Applications/old", "/Applications/new", "/Applications/Atlas.app"})
        EXPECT_EQ(files.attributes(MacPath(path))->modified, kNow) << path;
}

TEST_F(SystemToolsTest, KillallSendsTheSignalThatItIsTold) {
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"Dock"}, {"-HUP", "Dock"}, {"-SIGKILL", "Dock"}, {"-9", "Dock", "Finder"}})
        EXPECT_EQ(run("/usr/bin/killall", arguments).exitStatus, 0);
    EXPECT_THAT(signals, ElementsAre(Pair("Dock", SIGTERM), Pair("Dock", SIGHUP), Pair("Dock", SIGKILL),
                                     Pair("Dock", SIGKILL), Pair("Finder", SIGKILL)));
}

TEST_F(SystemToolsTest, ChflagsKeepsEachHiddenPathOnceWhileItIsThere) {
    ASSERT_TRUE(files.createFolder(MacPath("/brief")));
    for (const char* path : {"/Applications", "/brief", "/Applications/"})
        EXPECT_EQ(run("/usr/bin/chflags", {"hidden", path}).exitStatus, 0);
    EXPECT_THAT(listed(kHiddenPaths), ElementsAre("/Applications", "/brief"));
    ASSERT_TRUE(files.remove(MacPath("/brief")));
    EXPECT_EQ(run("/usr/bin/chflags", {"nohidden", "/Applications"}).exitStatus, 0);
    EXPECT_THAT(listed(kHiddenPaths), IsEmpty());
}

TEST_F(SystemToolsTest, LsregisterKeepsBundlesInOrderWithoutRepeats) {
    const std::string tool = kLaunchServicesTool.string();
    const MacPath wrapper("/Applications/Wrapper.app");
    ASSERT_TRUE(files.createFolder(wrapper));
    EXPECT_EQ(run("/bin/ln", {"-s", "/Applications/Atlas.app/Contents", wrapper.string()}).exitStatus, 0);
    EXPECT_EQ(*files.readLink(wrapper / "Contents"), "/Applications/Atlas.app/Contents");
    for (const std::string& path : {wrapper.string(), std::string("/Applications/Atlas.app"), wrapper.string()})
        EXPECT_EQ(run(tool, {"-f", path}).exitStatus, 0);
    EXPECT_THAT(listed(kRegisteredBundles), ElementsAre(wrapper.string(), "/Applications/Atlas.app"));
    for (const int exitStatus : {0, 1})
        EXPECT_EQ(run(tool, {"-u", wrapper.string()}).exitStatus, exitStatus);
    EXPECT_THAT(listed(kRegisteredBundles), ElementsAre("/Applications/Atlas.app"));

    ASSERT_TRUE(files.write(kRegisteredBundles, bytesOf("bplist00 cut")));
    EXPECT_EQ(run(tool, {"-f", wrapper.string()}).exitStatus, 1);
    EXPECT_EQ(textOf(*files.read(kRegisteredBundles)), "bplist00 cut") << "a damaged list is left alone";
}

TEST_F(SystemToolsTest, XattrKeepsFinderInfoOfThirtyTwoBytes) {
    const MacPath app("/Applications/Atlas.app");
    const std::string value = std::string(16, '0') + "04" + std::string(46, '0');
    EXPECT_EQ(run("/usr/bin/xattr", {"-wx", "com.apple.FinderInfo", value, app.string()}).exitStatus, 0);
    EXPECT_EQ(readFinderInfo(files, app).value().at(8), 0x04);
    EXPECT_THAT(run("/usr/bin/xattr", {"-px", "com.apple.FinderInfo", app.string()}).output,
                HasSubstr("00 00 00 00 00 00 00 00 04 00"));
    EXPECT_EQ(run("/usr/bin/xattr", {"-d", "com.apple.FinderInfo", app.string()}).exitStatus, 0);
    EXPECT_FALSE(readFinderInfo(files, app));
}

TEST_F(SystemToolsTest, NotesEachCallInTheJournal) {
    run("/usr/bin/killall", {"-HUP", "Dock"});
    run("/usr/bin/touch", {"/no/where\nat all"});
    EXPECT_EQ(textOf(*files.read(kToolJournal)), "794000000.250\t/usr/bin/killall\t-HUP\tDock\n"
                                                 "794000000.250\t/usr/bin/touch\t/no/where at all\n");
}

/// A child that records itself on a volume under a name and waits for a signal.
pid_t startChild(const HostPath& root, const std::string& name) {
    const pid_t child = ::fork();
    if (child == 0) {
        const auto record = ProcessRecord::claim(root, name);
        ::pause();
        ::_exit(0);
    }
    EXPECT_TRUE(test::waitFor([&] { return !liveProcesses(root, name).empty(); }));
    return child;
}

TEST(ProcessRecord, NamesOnlyLiveProcessesOfItsVolumeAndCleansUpAfterTheDead) {
    const test::TemporaryFolder one;
    const test::TemporaryFolder other;
    const pid_t ours = startChild(one.path(), "Dock");
    const pid_t theirs = startChild(other.path(), "Dock");
    const pid_t stranger = startChild(one.path(), "Stranger");
    const std::string record = (one.path() / kProcessFolder.string() / "Dock.").string();
    // As a dead Dock leaves it, whose number a stranger was given since.
    const std::string left = record + std::to_string(stranger);
    for (const std::string& file : {left, record + "1", record + "12x"})
        std::ofstream(file).flush();

    EXPECT_THAT(liveProcesses(one.path(), "Dock"), ElementsAre(ours));
    EXPECT_FALSE(std::filesystem::exists(left));
    EXPECT_THAT(liveProcesses(one.path(), "Doc"), IsEmpty());
    EXPECT_EQ(signalProcesses(one.path(), "Dock", SIGTERM), 1);

    int status = 0;
    EXPECT_EQ(::waitpid(ours, &status, 0), ours);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM);
    EXPECT_THAT(liveProcesses(one.path(), "Dock"), IsEmpty());
    for (const pid_t spared : {theirs, stranger}) {
        EXPECT_EQ(::waitpid(spared, &status, WNOHANG), 0) << "must still live";
        ::kill(spared, SIGKILL);
        ::waitpid(spared, &status, 0);
    }
}

} // namespace
} // namespace tavrik::practice
