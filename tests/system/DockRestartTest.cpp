#include "model/SettingsManager.h"
#include "platform/DistributedNotifications.h"
#include "platform/Tools.h"
#include "platform/Workspace.h"
#include "support/LogRecorder.h"
#include "support/SmallMac.h"
#include "system/DockManager.h"
#include "system/IconManager.h"
#include "system/LaunchpadManager.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tavrik::test {

namespace {

using testing::ElementsAre;
using Lines = std::vector<std::string>;

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

    Lines entries;
};

/// Refuses the first icons that it is given.
struct StubbornWorkspace : Workspace {
    QImage icon(const MacPath&) const override { return {}; }

    bool setIcon(const MacPath&, const QImage& icon) override {
        isClear = false;
        return !icon.isNull() && --refusals < 0;
    }

    bool clearIcon(const MacPath&) override { return isClear = true; }

    std::vector<RunningApplication> runningApplications() const override { return {}; }

    bool forceTerminate(const std::string&) override { return false; }

    int refusals = 0;
    bool isClear = false;
};

Mac macOf(SmallMac& small, Workspace& workspace, Journal& journal) {
    return {small.mac.volume, small.mac.files,  small.mac.bookmarks, workspace,
            journal,          journal,          small.mac.defaults,  small.mac.machine,
            journal,          small.mac.alerts, small.mac.random};
}

} // namespace

TEST(DockRestart, SyncsThePreferencesThenKillsInThisOrderEvenWhenNoToolCanBeStarted) {
    SmallMac small;
    Journal journal;
    Mac mac{small.mac.volume, small.mac.files,  small.mac.bookmarks, small.mac.workspace,
            journal,          journal,          small.mac.defaults,  small.mac.machine,
            journal,          small.mac.alerts, small.mac.random};
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

TEST(CustomIcon, TriesThreeTimesAndSaysSo) {
    struct Case {
        QImage icon;
        int refusals;
        bool isSet;
        Lines lines;
        Lines waits;
    };

    QImage picture(4, 4, QImage::Format_ARGB32);
    picture.fill(Qt::red);
    const std::string first = "Failed to set icon on attempt 1, retrying...";
    const std::string second = "Failed to set icon on attempt 2, retrying...";
    const std::string third = "Failed to set icon on attempt 3, retrying...";
    const std::string done = "Successfully set custom icon for /a";
    const std::vector<Case> cases{
        {picture, 0, true, {done}, {}},
        {picture, 2, true, {first, second, done}, {"wait 100", "wait 100"}},
        {picture,
         3,
         false,
         {first, second, third, "ERROR: Failed to set custom icon for /a after 3 attempts"},
         {"wait 100", "wait 100", "wait 100"}},
        {{}, 0, false, {"ERROR: Failed to copy icon"}, {}},
    };
    for (const Case& each : cases) {
        SmallMac small;
        Journal journal;
        StubbornWorkspace workspace;
        workspace.refusals = each.refusals;
        Mac mac = macOf(small, workspace, journal);
        LogRecorder log;
        EXPECT_EQ(IconManager(mac).setCustomIcon(each.icon, MacPath("/a")), each.isSet);
        EXPECT_EQ(log.lines(), each.lines);
        EXPECT_EQ(journal.entries, each.waits);
        EXPECT_EQ(workspace.isClear, each.icon.isNull()) << "an old icon goes first";
    }
}

} // namespace tavrik::test
