#include "platform/Bookmarks.h"
#include "platform/DistributedNotifications.h"
#include "platform/FileManager.h"
#include "platform/Machine.h"
#include "platform/PropertyList.h"
#include "platform/RecordingClock.h"
#include "platform/Tools.h"
#include "platform/UserDefaults.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PracticeMac.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

namespace tavrik::practice {

namespace {

class PracticePorts : public testing::Test {
protected:
    PracticePorts() { folder("/Applications/Atlas.app/Contents"); }

    Mac& mac() { return m_practice.mac(); }

    void folder(const char* path) { EXPECT_TRUE(mac().files.createFolder(MacPath(path))) << path; }

    void put(const MacPath& path, std::string_view content) {
        EXPECT_TRUE(mac().files.createFolder(path.parent()));
        EXPECT_TRUE(mac().files.write(path, bytesOf(content))) << path.string();
    }

    test::TemporaryFolder m_root;
    RecordingClock m_clock{Date{800'000'000.25}};
    PracticeMac m_practice{m_root.path(), {.clock = &m_clock}};
};

constexpr std::string_view kVersionList = R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict><key>ProductVersion</key><string>14.6</string></dict></plist>)";

} // namespace

TEST_F(PracticePorts, BookmarksRecordALinkItselfAndNoneAboveIt) {
    folder("/Users/ada/Applications");
    ASSERT_TRUE(mac().files.createLink(MacPath("/apps"), "/Applications"));
    ASSERT_TRUE(mac().files.createLink(MacPath("/Users/ada/Applications/Atlas"), "/Applications/Atlas.app"));
    const std::vector<std::pair<const char*, const char*>> cases{
        {"/Applications/Atlas.app", "/Applications/Atlas.app"},
        {"/apps/Atlas.app", "/Applications/Atlas.app"},
        {"/Users/ada/Applications/Atlas", "/Users/ada/Applications/Atlas"}};
    for (const auto& [given, expected] : cases) {
        const auto bookmark = mac().bookmarks.make(MacPath(given));
        ASSERT_TRUE(bookmark) << given;
        const auto path = mac().bookmarks.resolve(*bookmark);
        ASSERT_TRUE(path) << given;
        EXPECT_EQ(path->string(), expected);
    }
    EXPECT_FALSE(mac().bookmarks.make(MacPath("/")));
}

TEST_F(PracticePorts, FileURLsAreWrittenAsAMacDoes) {
    const std::vector<std::pair<const char*, const char*>> cases{
        {"/", "file:///"},
        {"/Applications/Atlas.app", "file:///Applications/Atlas.app/"},
        {"/a+b,c;d=(e)'!$&@:~*-._.txt", "file:///a+b,c;d=(e)'!$&@:~*-._.txt"},
        {"/Zürich 100%?#[x].app", "file:///Z%C3%BCrich%20100%25%3F%23%5Bx%5D.app"}};
    for (const auto& [path, url] : cases)
        EXPECT_EQ(mac().bookmarks.fileURL(MacPath(path)), url);
}

TEST_F(PracticePorts, ToolsOfTheVolumeRunAndNothingElseDoes) {
    const MacPath tool("/usr/bin/say");
    put(tool, "#!/bin/sh\necho \"$0|$1|$2\"\nexit 3\n");
    const std::string host = m_root.path().string() + "/usr/bin/say";
    ASSERT_EQ(::chmod(host.c_str(), 0700), 0);
    const auto result = mac().tools.run(tool, {"a b", "$HOME"});
    ASSERT_TRUE(result) << result.error().description;
    EXPECT_EQ(result->output, host + "|a b|$HOME\n");
    EXPECT_EQ(result->exitStatus, 3);

    ASSERT_TRUE(mac().files.createLink(MacPath("/usr/bin/out"), "/bin/sh"));
    for (const char* other : {"/bin/sh", "/usr/bin/out", "/usr/bin", "/usr/bin/../../../../../../../../bin/sh"})
        EXPECT_FALSE(mac().tools.run(MacPath(other), {"-c", "exit 0"})) << other;
}

TEST_F(PracticePorts, DefaultsSurviveTheProcessAndADamagedFileIsNotWrittenOver) {
    UserDefaults& defaults = mac().defaults;
    EXPECT_EQ(defaults.value("Width"), std::nullopt);
    ASSERT_TRUE(defaults.set("Width", 800));
    ASSERT_TRUE(defaults.set("Filter", "Dock"));
    ASSERT_TRUE(defaults.set("Width", std::nullopt));
    PracticeMac later(m_root.path());
    EXPECT_EQ(later.mac().defaults.value("Width"), std::nullopt);
    EXPECT_EQ(later.mac().defaults.value("Filter"), plist::Value("Dock"));

    const MacPath file("/Users/practice/Library/Preferences/com.tavrik.Tavrik.plist");
    put(file, "damaged");
    EXPECT_FALSE(defaults.set("Width", 900));
    EXPECT_EQ(textOf(*mac().files.read(file)), "damaged");
}

TEST_F(PracticePorts, TheMachineIsWhatItsFilesSay) {
    const Machine& machine = mac().machine;
    EXPECT_EQ(machine.serialNumber(), std::nullopt);
    EXPECT_EQ(machine.systemVersion(), SystemVersion());
    put(kSerialNumberFile, "  C02TAV0RIK1 \n");
    put(kSystemVersionFile, kVersionList);
    EXPECT_EQ(machine.serialNumber(), "C02TAV0RIK1");
    EXPECT_EQ(machine.systemVersion(), (SystemVersion{14, 6, 0}));
    put(kSerialNumberFile, " \n");
    EXPECT_EQ(machine.serialNumber(), std::nullopt);
}

TEST_F(PracticePorts, NotificationsAreNotedALineEach) {
    mac().notifications.post("com.apple.dock.prefchanged");
    m_clock.sleep(std::chrono::milliseconds(1500));
    mac().notifications.post("two\nlines\tand a tab");
    EXPECT_EQ(textOf(*mac().files.read(kNotificationJournal)), "800000000.250\tcom.apple.dock.prefchanged\n"
                                                               "800000001.750\ttwo lines and a tab\n");
}

} // namespace tavrik::practice
