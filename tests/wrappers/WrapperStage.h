#pragma once

#include "model/SettingsManager.h"
#include "model/UnsupportedAppsManager.h"
#include "platform/PathRules.h"
#include "platform/practice/Layout.h"
#include "practice/dock/Dock.h"
#include "support/FileTree.h"
#include "support/LogRecorder.h"
#include "support/practice/VirtualMac.h"
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

inline QImage plainIcon(Qt::GlobalColor colour) {
    QImage icon(64, 64, QImage::Format_ARGB32_Premultiplied);
    icon.fill(colour);
    return icon;
}

inline QImage redIcon() {
    return plainIcon(Qt::red);
}

inline ApplicationInfo application(const std::string& bundleID, const char* bundle) {
    const MacPath path(bundle);
    ApplicationInfo app;
    std::tie(app.name, app.bundleID, app.path) = std::tuple(path.stem(), bundleID, path);
    return app;
}

/// A furnished Mac in virtual time with a Dock, and the program on it.
class WrapperStage : public testing::Test, protected VirtualMac {
protected:
    WrapperStage() { start(); }

    void start() { program.emplace(mac); } ///< anew, as after a kill

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
    MacPath tilePath(const ApplicationInfo& app) const {
        const auto tiles = volume.pinnedTiles();
        const auto tile = std::ranges::find(tiles, app.bundleID, &PinnedTile::bundleID);
        return tile == tiles.end() ? MacPath() : tile->path;
    }

    /// The application's row as it was at first.
    const LaunchpadItem& firstRow(const ApplicationInfo& app) const {
        return *std::ranges::find(firstRows, app.bundleID, &LaunchpadItem::bundleID);
    }

    void expectSwapped(const ApplicationInfo& app) {
        const Pair now = rowsOf(app);
        ASSERT_TRUE(now.original && now.wrapper);
        EXPECT_EQ(placeOf(*now.wrapper), placeOf(firstRow(app))) << "exactly where the original stood";
        EXPECT_NE(placeOf(*now.original), placeOf(firstRow(app)));
        std::vector<LaunchpadItem> others = volume.launchpadItems();
        std::erase(others, *now.wrapper);
        *std::ranges::find(others, *now.original) = firstRow(app);
        EXPECT_EQ(others, firstRows);

        const auto mapping = program->settings.getMapping(app.bundleID);
        ASSERT_TRUE(mapping);
        EXPECT_EQ(std::pair(mapping->originalRowID, mapping->tavrikRowID),
                  std::pair(RowID{now.original->row}, RowID{now.wrapper->row}));
        EXPECT_TRUE(wrappers().hasWrapper(app.bundleID));
        EXPECT_EQ(tilePath(app), app.bundleID == atlas.bundleID ? wrapperOf(app) : MacPath());
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
    const ApplicationInfo atlas = application("org.example.atlas", "/Applications/Atlas.app");
    const ApplicationInfo tips = application("com.apple.tips", "/System/Applications/Tips.app");

    std::optional<Program> program;
    LogRecorder log;

    const std::vector<LaunchpadItem> firstRows = volume.launchpadItems();
    const plist::Value firstPreferences = steadyPreferences();
    const FileTree firstApplications = treeOf(volume.host(MacPath("/Applications")));
};

} // namespace tavrik::test
