#include "HealthStage.h"
#include "support/practice/Killing.h"
#include "system/DockTiles.h"

#include <filesystem>
#include <functional>

namespace tavrik::test {

namespace {

const std::string kBold = "Mathematical Bold";

class Health : public HealthStage {};

TEST_F(Health, HasNoFindingInOrdinaryUse) {
    expectHealthy();
    restyle({kAtlas, kFerrule, kMissionControl, kInkwell});
    expectHealthy();
    for (const char* style : {"Mathematical Bold", "Small Caps"}) {
        pending().setPendingFont(style);
        chooseNone(kFerrule);
        add(kCinder, 9);
        expectApplied();
        expectHealthy();
        restartDock();
        expectHealthy();
    }
    pending().setPendingReset(true);
    ASSERT_TRUE(pending().removeIcon(kInkwell, 0));
    expectApplied();
    expectHealthy();
    const auto backups = program->backups.listBackups();
    ASSERT_TRUE(program->backups.restoreBackup(backups.back()));
    restartDock();
    expectHealthy();
    ASSERT_TRUE(program->backups.restoreBackup(backups.front()));
    restartDock();
    start();
    expectHealthy();
    restyle({kAtlas});
    expectHealthy();
}

TEST_F(Health, LooksWithoutAChangeOnDisk) {
    restyle({kAtlas, kMissionControl});
    program->settings.setBackupRetentionCount(20); // so that the copy knows of the end of the last swap
    execute("UPDATE dbinfo SET value='1' WHERE key='ignore_items_update_triggers'");
    remove(wrapper(kAtlas));
    write(support("AppSettings.plist"), "cut");
    write(program->pendingChanges.tempFileURL(), "cut");
    const FileTree before = treeOf(volume.root());
    program.reset();
    program = std::make_unique<Managers>(whole, SettingsManager::Use::looking);
    program->themes.loadThemes();
    EXPECT_EQ(check().size(), 4u);
    // A reader notes in the index of the log that it reads.
    EXPECT_THAT(differences(before, treeOf(volume.root())), testing::Each(testing::HasSubstr("db-shm")));
}

class HealthDamage;

/// What is done to a Mac on which Atlas, Ferrule and Mission Control are restyled; what is found then; and what
/// the repair leaves.
struct Damage {
    enum class After {
        healthy,
        applied, ///< healthy, and the old look with the next apply
        noted,   ///< nothing but what is worth knowing
        same,    ///< what cannot be mended from here
    };

    const char* name;
    std::function<void(HealthDamage&)> harm;
    HealthStage::Found found;
    After after = After::healthy;

    friend void PrintTo(const Damage& damage, std::ostream* out) { *out << damage.name; }
};

class HealthDamage : public HealthStage, public testing::WithParamInterface<Damage> {};

using After = Damage::After;

const MacPath kSupport = practice::kApplicationSupport / "com.tavrik.Tavrik";
const MacPath kTavrik = practice::kHome / "Applications/Tavrik";
const MacPath kTemporary(practice::kTemporaryFolder);
const MacPath kDock = dockPreferencesPath(practice::kHome);
const MacPath kDatabase = launchpadDatabasePath(practice::kTemporaryFolder);

std::string in(const MacPath& folder, std::string_view name) {
    return (folder / name).string();
}

const Damage kDamages[] = {
    {"WrapperGone",
     [](auto& mac) { mac.remove(mac.wrapper(kAtlas)); },
     {{"wrapperMissing", kAtlas}},
     After::applied},
    {"WrapperOfAHiddenApplicationGone",
     [](auto& mac) { mac.remove(mac.wrapper(kMissionControl)); },
     {{"wrapperMissing", kMissionControl}},
     After::applied},
    {"WrapperGoneAndItsRow",
     [](auto& mac) {
         mac.remove(mac.wrapper(kAtlas));
         mac.restartDock();
     },
     {{"wrapperMissing", kAtlas}}},
    {"ApplicationMoved",
     [](auto& mac) {
         const MacPath to = MacPath("/Applications/Utilities") / mac.original(kAtlas).name();
         ASSERT_TRUE(mac.mac.files.move(mac.original(kAtlas), to));
         mac.execute("DELETE FROM items WHERE rowid=" + mac.row(mac.mapping(kAtlas).originalRowID));
         mac.showToDock({to});
     },
     {{"wrapperLinks", kAtlas}},
     After::applied},
    {"ApplicationMovedUnseenByTheDock",
     [](auto& mac) {
         const MacPath to = MacPath("/Applications/Utilities") / mac.original(kFerrule).name();
         ASSERT_TRUE(mac.mac.files.move(mac.original(kFerrule), to));
     },
     {{"wrapperLinks", kFerrule}}},
    {"BundleGotAnotherEntry",
     [](auto& mac) { mac.write(mac.original(kAtlas) / "Extras/Read me.txt", "new"); },
     {{"wrapperLinks", kAtlas}},
     After::applied},
    {"LinkGone",
     [](auto& mac) { mac.remove(mac.wrapper(kFerrule) / "Contents"); },
     {{"wrapperLinks", kFerrule}},
     After::applied},
    {"LinkToAnotherApplication",
     [](auto& mac) {
         mac.remove(mac.wrapper(kAtlas) / "Contents");
         ASSERT_TRUE(mac.mac.files.createLink(mac.wrapper(kAtlas) / "Contents",
                                              (mac.original(kInkwell) / "Contents").string()));
     },
     {{"wrapperLinks", kAtlas}},
     After::applied},
    {"UpdatePutIntoTheWrapper",
     [](auto& mac) {
         mac.remove(mac.wrapper(kAtlas) / "Contents");
         mac.write(mac.wrapper(kAtlas) / "Contents/Info.plist", "of its own");
     },
     {{"wrapperLinks", kAtlas}},
     After::same},
    {"IconLost", [](auto& mac) { mac.remove(mac.wrapper(kAtlas) / "Icon\r"); }, {{"wrapperIcon", kAtlas}}},
    {"RowOfTheOriginalGone",
     [](auto& mac) {
         mac.execute("DELETE FROM items WHERE rowid=" + mac.row(mac.mapping(kAtlas).originalRowID));
         mac.showToDock({mac.original(kAtlas)});
     },
     {{"rows", kAtlas}},
     After::applied},
    {"DatabaseMadeAnew",
     [](auto& mac) {
         mac.execute("DELETE FROM items WHERE type=4");
         mac.showToDock({mac.original(kInkwell), mac.original(kMissionControl), mac.original(kAtlas),
                         mac.original(kFerrule)});
     },
     {{"rows", kMissionControl}, {"rows", kAtlas}, {"rows", kFerrule}}},
    {"WrapperNeverExchanged",
     [](auto& mac) {
         ASSERT_TRUE(
             mac.program->wrappers.batchCreateWrapper(mac.application(kInkwell), HealthDamage::picture(7)));
     },
     {{"wrapperUnknown", in(kTavrik, "Inkwell.app")}}},
    {"HalfMadeWrapper",
     [](auto& mac) { ASSERT_TRUE(mac.mac.files.createFolder(kTavrik / "Half.app")); },
     {{"wrapperUnknown", in(kTavrik, "Half.app")}}},
    {"ApplicationInTheWrapperFolder",
     [](auto& mac) { mac.write(kTavrik / "Own.app/Contents/Info.plist", "of its own"); },
     {{"wrapperUnknown", in(kTavrik, "Own.app")}},
     After::same},
    {"ApplicationDeleted",
     [](auto& mac) { mac.remove(mac.original(kAtlas)); },
     {{"wrapperOrphaned", in(kTavrik, "Atlas.app")}, {"orphanedIcons", in(kSupport, "IconCache/" + kAtlas)}},
     After::noted},
    {"TileAtTheOriginal",
     [](auto& mac) { ASSERT_TRUE(mac.program->dock.forceRestoreDockEntry(kAtlas, mac.original(kAtlas))); },
     {{"tile", kAtlas}}},
    {"TileAtAWrapperThatIsGone",
     [](auto& mac) {
         const auto dock = mac.program->dock.readDockPlist();
         ASSERT_TRUE(mac.program->wrappers.removeWrapper(mac.application(kAtlas), RestartDock::yes));
         ASSERT_TRUE(mac.program->dock.writeDockPlist(*dock));
     },
     {{"tile", kAtlas}}},
    {"BookmarkWithoutNeed",
     [](auto& mac) { mac.program->settings.saveDockBookmark({.bundleID = kInkwell, .bookmark = Bytes{1}}); },
     {{"tile", kInkwell}}},
    {"TriggersOff",
     [](auto& mac) { mac.execute("UPDATE dbinfo SET value='1' WHERE key='ignore_items_update_triggers'"); },
     {{"triggerKey", kDatabase.string()}}},
    {"TitleLeftInAStyle",
     [](auto& mac) {
         mac.execute("UPDATE apps SET title='" + mac.styled("Cinder", kBold) + "' WHERE title='Cinder'");
     },
     {{"title", kCinder}}},
    {"ChangeOfStyleStopped",
     [](auto& mac) { ASSERT_TRUE(mac.program->settings.beginFontChange(FontState{kBold, true, {}})); },
     {{"unfinishedTitles", kBold}}},
    {"SettingsCut",
     [](auto& mac) {
         for (int change = 0; change < 2; ++change)
             mac.program->settings.setBackupRetentionCount(5);
         mac.write(kSupport / "AppSettings.plist", "cut");
     },
     {{"settings", in(kSupport, "AppSettings.plist")}}},
    {"StagedChangesCut",
     [](auto& mac) {
         mac.write(mac.pending().tempFileURL(), "cut");
         mac.start();
     },
     {{"stagedChanges", in(kSupport, "PendingChanges/pendingChanges.plist")}}},
    {"RecordOfATransferLeft",
     [](auto& mac) { mac.write(kSupport / "PendingChanges/transfer.plist", "left"); },
     {{"unfinishedApply", in(kSupport, "PendingChanges/transfer.plist")}}},
    {"NoSuchIconChosen",
     [](auto& mac) { mac.program->settings.setSelectedIcon(kInkwell, 7); },
     {{"selectedIcon", kInkwell}}},
    {"IconOfARestyledApplicationGone",
     [](auto& mac) { mac.remove(kSupport / "IconCache" / kAtlas / "icon_0.png"); },
     {{"selectedIcon", kAtlas}},
     After::noted},
    {"RowWithoutFlags",
     [](auto& mac) {
         mac.execute("UPDATE items SET flags=NULL WHERE rowid=(SELECT item_id FROM apps WHERE title='Cinder')");
     },
     {{"nullFlags", kCinder}},
     After::noted},
    {"ApplicationUpdated",
     [](auto& mac) {
         ASSERT_TRUE(mac.mac.files.setModified(mac.original(kAtlas) / "Contents/Info.plist", mac.clock.now()));
     },
     {{"applicationUpdated", kAtlas}},
     After::noted},
    {"RestoreStopped",
     [](auto& mac) {
         mac.write(MacPath(kDock.string() + ".pre-restore-backup"), "before");
         mac.write(MacPath(kDatabase.string() + ".pre-restore-backup"), "before");
     },
     {{"unfinishedRestore", kDock.string() + ".pre-restore-backup"},
      {"unfinishedRestore", kDatabase.string() + ".pre-restore-backup"}},
     After::same},
    {"BackupDamaged",
     [](auto& mac) { mac.write(kSupport / "Backups/Original State.encrypted", "cut"); },
     {{"backup", in(kSupport, "Backups/Original State.encrypted")}},
     After::same},
    {"DatabaseDamaged",
     [](auto& mac) {
         mac.remove(kDatabase.parent());
         mac.write(kDatabase, "no database");
     },
     {{"launchpadDatabase", kDatabase.string()}},
     After::same},
    {"DatabaseGone",
     [](auto& mac) { mac.remove(kDatabase.parent()); },
     {{"launchpadDatabase", kDatabase.string()}},
     After::same},
    {"DockPreferencesCut",
     [](auto& mac) { mac.write(kDock, "cut"); },
     {{"dockPreferences", kDock.string()}},
     After::same},
    {"SupportFolderOpenToOthers",
     [](auto& mac) {
         std::filesystem::permissions(mac.volume.host(kSupport).string(), std::filesystem::perms(0755));
     },
     {{"folderRights", kSupport.string()}},
     After::same},
};

} // namespace

TEST_P(HealthDamage, IsFoundAndMended) {
    const Damage& damage = GetParam();
    const std::vector<std::string> restyledApps = {kAtlas, kFerrule, kMissionControl};
    restyle(restyledApps);
    damage.harm(*this);
    ASSERT_FALSE(HasFatalFailure());
    ASSERT_EQ(found(), damage.found);

    const HealthRepair result = repair();
    const auto left = check();
    switch (damage.after) {
    case After::healthy:
    case After::applied:
        EXPECT_EQ(named(left), Found());
        break;
    case After::noted:
        for (const HealthFinding& finding : left)
            EXPECT_EQ(finding.remedy, Remedy::notNeeded) << finding.sentence;
        break;
    case After::same:
        EXPECT_EQ(named(left), damage.found);
        EXPECT_TRUE(result.outcomes.empty());
    }
    for (const HealthRepair::Outcome& outcome : result.outcomes)
        EXPECT_TRUE(outcome.isMended) << outcome.sentence;
    if (damage.after == After::same)
        return;

    EXPECT_EQ(result.hasStaged, pending().hasPendingChanges());
    if (result.hasStaged) {
        expectApplied();
        settle();
    }
    EXPECT_THAT(found(), testing::IsSubsetOf(named(left)));
    for (std::size_t i = 0; damage.after == After::applied && i < restyledApps.size(); ++i)
        EXPECT_EQ(lookOf(restyledApps[i]), restyled(restyledApps[i], static_cast<int>(i) + 1))
            << restyledApps[i];
}

TEST_F(Health, PutsOriginalsBackIntoTheirPlacesAlthoughTheSettingsAreLost) {
    restyle({kAtlas, kFerrule, kMissionControl});
    remove(kSupport / "AppSettings.plist");
    remove(kSupport / "AppSettings.backup");
    start();
    EXPECT_EQ(found(), (Found{{"settings", in(kSupport, "AppSettings.plist")}}));

    // A program that runs makes new ones.
    EXPECT_EQ(check().front().kind, Kind::wrapperUnknown);
    repair();
    expectHealthy();
    EXPECT_EQ(volume.launchpadItems(), firstRows);
    EXPECT_EQ(volume.pinnedTiles(), firstTiles);
}

/// Stopped anywhere, an apply is taken up by the repair, and ends with the look that it was to have.
TEST_F(Health, MendsAnApplyThatWasKilledAnywhere) {
    const HealthStage::Found none;
    for (std::size_t change = 3; change < 1000; change += 13) {
        SCOPED_TRACE("change " + std::to_string(change));
        add(kAtlas, static_cast<int>(change));
        add(kMissionControl, static_cast<int>(change) + 1);
        const bool isKilled = isKilledBefore(*this, change, [&] { ignoreFailure(apply().isAudited); });
        start();
        settle();
        for (const HealthRepair::Outcome& outcome : repair().outcomes)
            EXPECT_TRUE(outcome.isMended) << nameOf(outcome.finding.kind) << ": " << outcome.finding.sentence;
        expectHealthy();
        if (pending().hasPendingChanges())
            expectApplied();
        expectHealthy();
        EXPECT_EQ(lookOf(kAtlas), restyled(kAtlas, static_cast<int>(change)));
        EXPECT_EQ(lookOf(kMissionControl), restyled(kMissionControl, static_cast<int>(change) + 1));
        if (!isKilled || HasFailure())
            break;
        chooseNone(kAtlas);
        chooseNone(kMissionControl);
        expectApplied();
        settle();
    }
}

TEST_F(Health, WritesNamesAnewThatAreNotInTheStyleInEffect) {
    pending().setPendingFont(kBold);
    expectApplied();
    const auto tiles = volume.pinnedTiles();
    const auto rows = volume.launchpadItems();
    execute("UPDATE apps SET title='Cinder' WHERE bundleid='" + kCinder + "'");
    execute("UPDATE groups SET title='Utilities' WHERE item_id=24");
    auto dock = volume.dockPreferences();
    dock::findTile(dock, kAtlas).setLabel("Atlas");
    ASSERT_TRUE(program->dock.writeDockPlist(dock));
    EXPECT_EQ(found(), (Found{{"label", kAtlas}, {"title", kCinder}, {"title", "24"}}));
    repair();
    expectHealthy();
    EXPECT_EQ(volume.launchpadItems(), rows);
    EXPECT_EQ(volume.pinnedTiles(), tiles);
}

TEST_F(Health, LeavesTheStoresAloneWithoutASnapshot) {
    restyle({kAtlas});
    remove(wrapper(kAtlas));
    execute("UPDATE dbinfo SET value='1' WHERE key='ignore_items_update_triggers'");
    write(support("Themes/.new-1/Info.plist"), "cut");
    files.setRule([](const FileOperation& operation) -> std::optional<int> {
        return operation.name == "create" && operation.path.isInside(kSupport / "Backups")
                   ? std::optional(ENOSPC)
                   : std::nullopt;
    });
    const auto rows = volume.launchpadItems();
    const HealthRepair result = repair();
    EXPECT_FALSE(result.backup);
    for (const HealthRepair::Outcome& outcome : result.outcomes)
        EXPECT_EQ(outcome.isMended, outcome.finding.kind == Kind::leftover) << outcome.finding.sentence;
    EXPECT_EQ(result.outcomes.size(), 3u);
    EXPECT_EQ(volume.launchpadItems(), rows);
    EXPECT_TRUE(program->wrappers.hasWrapper(kAtlas));
}

TEST_F(Health, DeletesLeftoversAndNothingElse) {
    restyle({kAtlas});
    const std::vector<MacPath> left = {
        kSupport / "AppSettings.tmp",
        kSupport / "AppSettings.backup.tavrik-copy",
        kSupport / "PendingChanges/pendingChanges.plist.new",
        kSupport / "IconCache" / kAtlas / "icon_1.png.new",
        kSupport / "Backups/2025-01-01_00-00-00.encrypted.new",
        kSupport / "Themes/.new-1234/Info.plist",
        kSupport / "Themes/.deleted-1234/Icons/a.png",
        kSupport / "Themes/5678/Icons/a.png.new",
        kTavrik / " WARNING! README!.rtf.tavrik-copy",
        MacPath(kDock.string() + ".new"),
        MacPath(kDatabase.string() + ".pre-restore-backup.new"),
        kTemporary / "launchpad_temp.db",
        kTemporary / "backup_check.db-wal",
    };
    for (const char* name :
         {"PendingChanges/pendingChanges.damaged.plist", "IconCache/org.example.atlas/notes.new",
          "IconCache/org.example.inkwell/temp_icon_0.png"})
        write(kSupport / name, "mine");
    write(practice::kHome / "Elsewhere/icon_0.png.new", "mine");
    ASSERT_TRUE(mac.files.createLink(kSupport / "IconCache/linked", in(practice::kHome, "Elsewhere")));
    const FileTree before = treeOf(volume.root());
    for (const MacPath& file : left)
        write(file, "left");
    // Else the notes of what is seen would replace some of them.
    program->settings.setReadOnly();
    const auto findings = found();
    start();
    EXPECT_EQ(findings.size(), left.size());
    for (const auto& [kind, subject] : findings)
        EXPECT_EQ(kind, "leftover") << subject;
    repair();
    EXPECT_THAT(differences(before, treeOf(volume.root())),
                testing::Each(testing::ContainsRegex("db-shm|AppSettings|/5678")));
}

INSTANTIATE_TEST_SUITE_P(Damages, HealthDamage, testing::ValuesIn(kDamages),
                         [](const auto& test) { return std::string(test.param.name); });

} // namespace tavrik::test
