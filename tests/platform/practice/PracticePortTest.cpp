#include "platform/Bookmarks.h"
#include "platform/FileManager.h"
#include "platform/Machine.h"
#include "platform/PropertyList.h"
#include "platform/Tools.h"
#include "platform/UserDefaults.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PracticeMac.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace tavrik::practice {

namespace {

class PracticePorts : public testing::Test {
protected:
    Mac& mac() { return m_practice.mac(); }

    void put(const MacPath& path, std::string_view content) {
        EXPECT_TRUE(mac().files.createFolder(path.parent()));
        EXPECT_TRUE(mac().files.write(path, bytesOf(content))) << path.string();
    }

    test::TemporaryFolder m_root;
    PracticeMac m_practice{m_root.path()};
};

constexpr std::string_view kVersionList = R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict><key>ProductVersion</key><string>14.6</string></dict></plist>)";

} // namespace

TEST_F(PracticePorts, BookmarksRecordALinkItselfAndNoneAboveIt) {
    for (const char* folder : {"/Applications/Atlas.app", "/Users/ada/Applications"})
        ASSERT_TRUE(mac().files.createFolder(MacPath(folder)));
    ASSERT_TRUE(mac().files.createLink(MacPath("/apps"), "/Applications"));
    ASSERT_TRUE(mac().files.createLink(MacPath("/Users/ada/Applications/Atlas"), "/Applications/Atlas.app"));
    const std::pair<const char*, const char*> cases[] = {
        {"/apps/Atlas.app", "/Applications/Atlas.app"},
        {"/Users/ada/Applications/Atlas", "/Users/ada/Applications/Atlas"}};
    for (const auto& [given, expected] : cases) {
        const auto path = mac().bookmarks.resolve(*mac().bookmarks.make(MacPath(given)));
        ASSERT_TRUE(path) << given;
        EXPECT_EQ(path->string(), expected);
    }
    EXPECT_FALSE(mac().bookmarks.make(MacPath("/")));
}

TEST_F(PracticePorts, NoToolOutsideTheVolumeRuns) {
    ASSERT_TRUE(mac().files.createFolder(MacPath("/usr/bin")));
    ASSERT_TRUE(mac().files.createLink(MacPath("/usr/bin/out"), "/bin/sh"));
    for (const char* other : {"/bin/sh", "/usr/bin/out", "/usr/bin", "/usr/bin/../../../../../../../../bin/sh"})
        EXPECT_FALSE(mac().tools.run(MacPath(other), {"-c", "exit 0"})) << other;
}

TEST_F(PracticePorts, DefaultsSurviveTheProcessAndADamagedFileIsNotWrittenOver) {
    UserDefaults& defaults = mac().defaults;
    ASSERT_TRUE(defaults.set("Filter", "Dock"));
    EXPECT_EQ(PracticeMac(m_root.path()).mac().defaults.value("Filter"), plist::Value("Dock"));

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
}

} // namespace tavrik::practice
