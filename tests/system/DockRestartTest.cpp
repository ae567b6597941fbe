#include "model/SettingsManager.h"
#include "platform/Clock.h"
#include "platform/DistributedNotifications.h"
#include "platform/Tools.h"
#include "platform/practice/PracticeMac.h"
#include "support/LogRecorder.h"
#include "support/TemporaryFolder.h"
#include "system/DockManager.h"
#include "system/LaunchpadManager.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tavrik::test {

namespace {

using testing::ElementsAre;

/// Notes what is asked of the system, all in one list, and does nothing.
struct Journal : Clock, Tools, DistributedNotifications {
    Date now() const override { return {}; }

    void sleep(std::chrono::milliseconds time) override {
        entries.push_back("wait " + std::to_string(time.count()));
    }

    Result<ToolResult> run(const MacPath& tool, const std::vector<std::string>& arguments,
                           const ToolLimits&) override {
        std::string entry = tool.string();
        for (const std::string& argument : arguments)
            entry += " " + argument;
        entries.push_back(entry);
        return Error{"no such tool"};
    }

    void post(const std::string& name) override { entries.push_back("post " + name); }

    std::vector<std::string> entries;
};

} // namespace

TEST(DockRestart, SyncsThePreferencesThenKillsInThisOrderEvenWhenNoToolCanBeStarted) {
    TemporaryFolder folder;
    Journal journal;
    practice::PracticeMac practice(folder.path(),
                                   {.clock = &journal, .tools = &journal, .notifications = &journal});
    Mac& mac = practice.mac();
    SettingsManager settings(mac);
    DockManager dock(mac, settings);
    LogRecorder log;
    LaunchpadManager(mac, dock).restartDock();

    EXPECT_THAT(journal.entries,
                ElementsAre("/usr/bin/touch /Users/practice/Library/Preferences/com.apple.dock.plist",
                            "post com.apple.dock.prefchanged", "post com.apple.dock.refreshItems", "wait 100",
                            "/usr/bin/defaults write com.apple.dock RecentlyUsedApps -bool true", "wait 100",
                            "post com.apple.dock.prefchanged", "post com.apple.dock.refreshItems", "wait 200",
                            "/usr/bin/killall Dock"));
    EXPECT_THAT(log.lines(),
                ElementsAre("\n>>> DOCK RESTART: Killing Dock process to refresh Launchpad and Dock...",
                            ">>> DOCK RESTART: Complete\n"));
}

} // namespace tavrik::test
