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

using namespace ::testing;

constexpr Date kNow{794'000'000.25};

struct SystemToolsTest : Test {
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
    const std::string info = "com.apple.FinderInfo";
    const std::string file = "/Applications/Atlas.app/Contents/Info.plist";
    const std::tuple<std::string, std::vector<std::string>, std::string> cases[] = {
        {"/usr/bin/touch", {"/no/where"}, "touch: /no/where: No such file or directory\n"},
        {"/usr/bin/killall", {"Finder"}, "No matching processes belonging to you were found\n"},
        {"/usr/bin/killall", {"-NONE", "Dock"}, "usage: killall"},
        {"/usr/bin/chflags", {"hidden", "/no"}, "chflags: /no: No such file or directory\n"},
        {"/bin/ln", {"-s", "/a", file}, "ln: " + file + ": File exists\n"},
        {"/usr/bin/xattr", {"-w", info, std::string(64, '0'), file}, "xattr: [Errno 34] Result too large: "},
        {"/usr/bin/xattr", {"-wx", info, "0g", file}, "non-hexadecimal"},
        {"/usr/bin/xattr", {"-p", info, file}, "xattr: " + file + ": No such xattr: com.apple.FinderInfo\n"},
        {kLaunchServicesTool.string(), {"-f", file}, "failed to scan " + file + ": error -10811"},
        {"/usr/bin/make", {}, "command not found"},
    };
    for (const auto& [tool, arguments, errors] : cases) {
        const ToolAnswer answer = run(tool, arguments);
        EXPECT_EQ(answer.exitStatus, tool == "/usr/bin/make" ? 127 : 1) << tool << " " << errors;
        EXPECT_THAT(answer.errors, HasSubstr(errors)) << tool;
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

const MacPath kDockPreferences = kPreferencesFolder / "com.apple.dock.plist";

struct DefaultsTest : SystemToolsTest {
    DefaultsTest() {
        EXPECT_TRUE(files.createFolder(kPreferencesFolder));
        EXPECT_TRUE(writePropertyList(files, kDockPreferences, original));
    }

    ToolAnswer run(std::vector<std::string> arguments, const char* domain = "com.apple.dock") {
        arguments.insert(arguments.begin() + 1, domain);
        return SystemToolsTest::run("/usr/bin/defaults", arguments);
    }

    plist::Value original = plist::Dictionary{
        {"autohide", true},
        {"book", Bytes{1, 0xFF}},
        {"last", Date{86'400}},
        {"orientation", "left side"},
        {"persistent-apps", plist::Array{plist::Dictionary{{"GUID", -7}, {"tile-type", "file-tile"}}, "b\"c"}},
        {"tilesize", 48.5}};
};

TEST_F(DefaultsTest, ReadsValuesAsTheMacPrintsThem) {
    const std::pair<const char*, const char*> cases[] = {
        {"autohide", "1\n"},
        {"book", "{length = 2, bytes = 0x01ff}\n"},
        {"last", "2001-01-02 00:00:00 +0000\n"},
        {"orientation", "left side\n"},
        {"persistent-apps", "(\n    {\n        GUID = \"-7\";\n        \"tile-type\" = \"file-tile\";\n    "
                            "},\n    \"b\\\"c\"\n)\n"},
        {"tilesize", "48.5\n"},
    };
    for (const auto& [key, text] : cases)
        EXPECT_EQ(run({"read", key}).output, text);
    EXPECT_THAT(run({"read"}).output, StartsWith("{\n    autohide = 1;\n    book = {length"));
}

TEST_F(DefaultsTest, SaysWhatDoesNotExist) {
    EXPECT_THAT(run({"read", "missing"}).errors,
                AllOf(StartsWith("2026-02-28 19:33:20.250 defaults["),
                      EndsWith("] \nThe domain/default pair of (com.apple.dock, missing) does not exist\n")));
    ASSERT_TRUE(files.remove(kDockPreferences));
    EXPECT_EQ(run({"read"}).exitStatus, 1);
    EXPECT_THAT(run({"read"}).errors, EndsWith("\nDomain com.apple.dock does not exist\n"));
    EXPECT_EQ(run({"delete", "autohide"}).exitStatus, 1);
}

TEST_F(DefaultsTest, WritesOneKeyAndKeepsEveryOther) {
    const std::pair<std::vector<std::string>, plist::Value> cases[] = {
        {{"write", "RecentlyUsedApps", "-bool", "true"}, true},
        {{"write", "autohide", "-bool", "NO"}, false},
        {{"write", "count", "-int", "-9000000000"}, std::int64_t{-9'000'000'000}},
        {{"write", "tilesize", "-float", "36"}, 36.0},
        {{"write", "name", "-string", "-int"}, "-int"},
        {{"write", "plain", "12"}, "12"},
    };
    plist::Value expected = original;
    for (const auto& [arguments, value] : cases) {
        const ToolAnswer answer = run(arguments);
        EXPECT_TRUE(answer.exitStatus == 0 && answer.errors.empty()) << arguments[1];
        expected.as<plist::Dictionary>()->insert_or_assign(arguments[1], value);
    }
    EXPECT_THAT(textOf(*files.read(kDockPreferences)), StartsWith("bplist00"));
    EXPECT_EQ(run({"delete", "name"}).exitStatus, 0);
    expected.as<plist::Dictionary>()->erase("name");
    EXPECT_EQ(**readPropertyList(files, kDockPreferences), expected);
}

TEST_F(DefaultsTest, RefusesWhatItCannotWriteAndChangesNothing) {
    const Bytes before = *files.read(kDockPreferences);
    for (const auto& [type, value] :
         {std::pair{"-bool", "perhaps"}, {"-int", "1x"}, {"-float", ""}, {"-date", "today"}})
        EXPECT_EQ(run({"write", "k", type, value}).exitStatus, 1) << type;
    EXPECT_EQ(*files.read(kDockPreferences), before);

    ASSERT_TRUE(files.write(kDockPreferences, bytesOf("bplist00 cut short")));
    EXPECT_THAT(run({"write", "k", "-bool", "true"}).errors,
                EndsWith("\nCould not write domain com.apple.dock; exiting\n"));
    EXPECT_EQ(textOf(*files.read(kDockPreferences)), "bplist00 cut short");

    EXPECT_EQ(run({"write", "k", "-bool", "true"}, "../../escaped").exitStatus, 1);
    EXPECT_FALSE(files.exists(kHome / "escaped.plist"));
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
