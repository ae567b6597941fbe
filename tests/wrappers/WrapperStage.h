#pragma once

#include "model/SettingsManager.h"
#include "model/UnsupportedAppsManager.h"
#include "platform/PathRules.h"
#include "platform/RecordingClock.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PracticeMac.h"
#include "practice/dock/Dock.h"
#include "practice/session/VirtualSession.h"
#include "support/FailingFileManager.h"
#include "support/FileTree.h"
#include "support/LogRecorder.h"
#include "support/practice/PracticeVolume.h"
#include "system/DatabaseManager.h"
#include "system/DockManager.h"
#include "system/IconManager.h"
#include "system/LaunchpadManager.h"
#include "wrappers/IconSettingsManager.h"
#include "wrappers/TavrikAppManager.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tavrik::test {

/// The managers of one run of the program.
struct Program {
    explicit Program(Mac& on) : mac(on) {}

    Mac& mac;
    SettingsManager settings{mac};
    UnsupportedAppsManager unsupported;
    IconManager icons{mac};
    DatabaseManager database{mac, settings, icons, unsupported};
    DockManager dock{mac, settings};
    LaunchpadManager launchpad{mac, dock};
    IconSettingsManager iconSettings{mac};
    TavrikAppManager wrappers{mac, settings, database, dock, icons, launchpad, iconSettings};
};

inline QImage redIcon() {
    QImage icon(64, 64, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::red);
    return icon;
}

inline ApplicationInfo application(const std::string& name, const std::string& bundleID,
                                   const std::string& path) {
    ApplicationInfo app;
    app.name = name;
    app.bundleID = bundleID;
    app.path = MacPath(path);
    return app;
}

/// A furnished Mac in virtual time with a Dock, and the program on it.
class WrapperStage : public testing::Test {
protected:
    WrapperStage() { start(); }

    /// The program anew, as after a kill.
    void start() { program.emplace(mac); }

    TavrikAppManager& wrappers() { return program->wrappers; }

    MacPath wrapperOf(const ApplicationInfo& app) const { return kWrappers / app.path.name(); }

    /// The application's row and its wrapper's: nothing where there is none.
    struct Pair {
        std::optional<LaunchpadItem> original;
        std::optional<LaunchpadItem> wrapper;
    };

    Pair rowsOf(const ApplicationInfo& app) const {
        Pair pair;
        for (const LaunchpadItem& row : volume.appRows(app.bundleID))
            (isWrapperPath(row.path) ? pair.wrapper : pair.original) = row;
        return pair;
    }

    /// All rows but this application's.
    std::vector<LaunchpadItem> otherRows(const ApplicationInfo& app, std::vector<LaunchpadItem> rows) const {
        std::erase_if(rows, [&](const LaunchpadItem& row) { return row.bundleID == app.bundleID; });
        return rows;
    }

    static auto placeOf(const LaunchpadItem& row) { return std::tuple(row.parent, row.ordering, row.flags); }

    /// The Dock's preferences without what counts changes.
    plist::Value steadyPreferences() const {
        plist::Value preferences = volume.dockPreferences();
        auto& root = *preferences.as<plist::Dictionary>();
        root.erase("mod-count");
        root.erase("RecentlyUsedApps");
        return preferences;
    }

    /// Where the application's tile leads; empty without one.
    static MacPath tilePath(const ApplicationInfo& app, const std::vector<PinnedTile>& tiles) {
        for (const PinnedTile& tile : tiles)
            if (tile.bundleID == app.bundleID)
                return tile.path;
        return MacPath();
    }

    MacPath tilePath(const ApplicationInfo& app) const { return tilePath(app, volume.pinnedTiles()); }

    /// The application's row as it was at first.
    const LaunchpadItem& firstRow(const ApplicationInfo& app) const {
        return *std::find_if(firstRows.begin(), firstRows.end(),
                             [&](const LaunchpadItem& row) { return row.bundleID == app.bundleID; });
    }

    void expectSwapped(const ApplicationInfo& app) {
        const Pair now = rowsOf(app);
        ASSERT_TRUE(now.original && now.wrapper);
        EXPECT_EQ(placeOf(*now.wrapper), placeOf(firstRow(app))) << "exactly where the original stood";
        EXPECT_NE(placeOf(*now.original), placeOf(firstRow(app)));
        EXPECT_EQ(otherRows(app, volume.launchpadItems()), otherRows(app, firstRows));

        const auto mapping = program->settings.getMapping(app.bundleID);
        ASSERT_TRUE(mapping);
        EXPECT_EQ(mapping->originalRowID, RowID{firstRow(app).row});
        EXPECT_EQ(mapping->tavrikRowID, RowID{now.wrapper->row});
        EXPECT_TRUE(wrappers().hasWrapper(app.bundleID));
        EXPECT_EQ(tilePath(app), tilePath(app, firstTiles).empty() ? MacPath() : wrapperOf(app));
        EXPECT_EQ(*mac.files.readLink(wrapperOf(app) / "Contents"), (app.path / "Contents").string());
        EXPECT_EQ(treeOf(volume.host(MacPath("/Applications"))), firstApplications);
    }

    void expectUntouched(const ApplicationInfo& app) {
        clock.sleep(std::chrono::seconds(10)); // the Dock drops the row of a wrapper that is gone
        EXPECT_EQ(volume.launchpadItems(), firstRows);
        EXPECT_EQ(steadyPreferences(), firstPreferences);
        EXPECT_FALSE(program->settings.getMapping(app.bundleID));
        EXPECT_FALSE(program->settings.getSelectedIcon(app.bundleID));
        EXPECT_FALSE(program->settings.getDockBookmark(app.bundleID));
        EXPECT_TRUE(program->settings.getAllSwapRecords().empty());
        EXPECT_EQ(treeOf(volume.host(MacPath("/Applications"))), firstApplications);
        const auto left = mac.files.list(kWrappers);
        EXPECT_TRUE(!left || left->empty()) << left->front();
    }

    const MacPath kWrappers = wrapperFolder(practice::kHome);
    const ApplicationInfo atlas = application("Atlas", "org.example.atlas", "/Applications/Atlas.app");
    const ApplicationInfo tips = application("Tips", "com.apple.tips", "/System/Applications/Tips.app");

    PracticeVolume volume;
    RecordingClock clock;
    practice::VirtualSession session{volume.root(), clock};
    practice::PracticeMac practice{volume.root(), {.clock = &clock, .tools = &session}};
    FailingFileManager files{practice.mac().files};
    Mac& own = practice.mac();
    Mac mac{own.volume,   files,       own.bookmarks, own.workspace, session,   own.notifications,
            own.defaults, own.machine, clock,         own.alerts,    own.random};
    std::optional<Program> program;
    LogRecorder log;

    const std::vector<LaunchpadItem> firstRows = volume.launchpadItems();
    const std::vector<PinnedTile> firstTiles = volume.pinnedTiles();
    const plist::Value firstPreferences = steadyPreferences();
    const FileTree firstApplications = treeOf(volume.host(MacPath("/Applications")));
};

} // namespace tavrik::test
