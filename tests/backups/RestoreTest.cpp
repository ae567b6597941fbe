#include "RestoreStage.h"
#include "practice/picture/Picture.h"

#include <set>

using namespace tavrik;
using namespace tavrik::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const std::string kFailed = "❌ Failed to restore backup files: ";

/// What a person sees of a Mac, and what stands behind it.
auto lookOf(const PracticeVolume& volume) {
    return std::tuple(*practice::drawPicture(volume.root()), volume.launchpadItems(), volume.pinnedTiles());
}

using Restore = BackupStage;

TEST_F(Restore, BringsBackTheLookOfBeforeOnThisMacAndOnAnEmptyOne) {
    const auto before = lookOf(volume);
    const auto expectLookAfterRestart = [&] {
        managers->launchpad.restartDock();
        clock.sleep(std::chrono::seconds(10));
        EXPECT_EQ(lookOf(volume), before);
    };
    EXPECT_TRUE(backups().createBackup());
    restyle();
    const MacPath ofStyled = *backups().createBackup();

    log.clear();
    EXPECT_TRUE(backups().restoreBackup(ofStyled));
    std::vector<std::string> lines = log.lines();
    lines.erase(lines.begin(), std::ranges::find(lines, "✅ Created dock safety backup"));
    std::erase_if(lines, [](const auto& line) { return line.starts_with("📝") || line.starts_with("   -"); });
    EXPECT_THAT(lines,
                ElementsAre("✅ Created dock safety backup", "✅ Created launchpad safety backup",
                            "🗑️ Deleted original dock plist", "🧹 Cleared db folder before restore",
                            "🧹 Cleared ~/Applications/Tavrik folder (3 items)",
                            "🧹 Cleaned up all pending icons", "🧹 Cleared pending changes",
                            "✅ Cleaned up safety backups", "✅ Backup restored successfully",
                            "🧹 Cleared TavrikMappings, SelectedIcons, and CurrentFontState from settings"));
    EXPECT_THAT(*mac.files.list(kWrappers), IsEmpty());
    EXPECT_FALSE(managers->pendingChanges.hasRecoverableChanges() || managers->pendingChanges.hasActiveFonts());
    expectLookAfterRestart();

    // What is restyled afterwards starts afresh, and can be undone as completely.
    restyle();
    EXPECT_TRUE(backups().restoreBackup(backups().backupsBaseURL() / BackupFolder::kOriginalState));
    expectLookAfterRestart();

    EXPECT_EQ(backups().listBackups().size(), 4u);
    for (const MacPath& backup : backups().listBackups()) {
        SCOPED_TRACE(backup.name());
        const PracticeVolume another;
        practice::PracticeMac bare{another.root(), {.clock = &clock}};
        for (const MacPath& lost : {kDatabase.parent().parent(), kDockFile, practice::kApplicationSupport})
            ASSERT_TRUE(bare.mac().files.remove(lost) || !bare.mac().files.exists(lost));
        const MacPath file = practice::kHome / "Brought along.encrypted";
        ASSERT_TRUE(bare.mac().files.create(file, *fileAt(backup)));
        EXPECT_TRUE(Managers(bare.mac()).backups.restoreBackup(file));
        EXPECT_EQ(lookOf(another), before);
    }
}

using RestoreFailures = RestoreStage;

TEST_F(RestoreFailures, AreToldAndStopWhatCouldNotBeFinished) {
    const struct {
        const char* operation;
        MacPath path;
        std::string line;
        bool isRestored;
    } cases[] = {
        {"read", kDockFile, kFailed, false},
        {"remove", databaseLog, "  ⚠️ Could not remove db-wal", false},
        {"list", kDatabase.parent(), "⚠️ Could not list db folder contents: ", false},
        {"remove", kDatabase, "  ⚠️ Could not remove db", true},
        {"remove", kWrappers / "Atlas.app", "  ⚠️ Could not remove Tavrik app Atlas.app", true},
        {"list", kWrappers, "⚠️ Could not list Tavrik folder contents: ", true},
        {"remove", dockCopy, "ℹ️ Safety backup cleanup: ", true},
        {"replace", managers->settings.appSupportURL() / "AppSettings.plist",
         "⚠️ Could not clear TavrikMappings, SelectedIcons, and CurrentFontState from settings", true},
    };

    for (const auto& [operation, path, line, isRestored] : cases) {
        SCOPED_TRACE(operation + (" " + path.string()));
        startOver();
        files.failOn(operation, path, EACCES);
        EXPECT_EQ(bool(putBack(plain)), isRestored);
        EXPECT_TRUE(log.mentions(line));
        EXPECT_EQ(log.mentions(kFailed), !isRestored);
        EXPECT_EQ(log.has("✅ Backup restored successfully"), isRestored);
    }
    // A disk that does not keep what was written.
    for (const MacPath& file : {kDockFile, kDatabase}) {
        SCOPED_TRACE(file.string());
        startOver();
        files.setRule([&](const FileOperation& operation) -> std::optional<int> {
            if (operation.name == "read" && operation.path == file && own.files.exists(databaseCopy))
                put(file, bytesOf("another"));
            return std::nullopt;
        });
        EXPECT_FALSE(putBack(plain));
        EXPECT_EQ(fileAt(dockCopy), styled.dockPlist);
        EXPECT_EQ(launchpadAt(databaseCopy), styled.launchpadDatabase);
    }
}

using RestoreSettings = RestoreStage;

TEST_F(RestoreSettings, ForgetWhatSpokeOfTheStoresThatAreGone) {
    SettingsManager& settings = managers->settings;
    plist::Dictionary all = settings.loadSettings();
    all["SomebodysOwn"] = "kept";
    settings.saveSettings(all);
    EXPECT_TRUE(settings.saveSwapRecord("x.y", {}));
    EXPECT_TRUE(settings.beginFontChange(std::nullopt));

    // A backup that was sealed without being cleaned: only the bookmark can still mend the tile.
    EXPECT_TRUE(putBack(styled));
    EXPECT_TRUE(settings.getDockBookmark("org.example.atlas"));
    EXPECT_TRUE(putBack(plain));
    EXPECT_FALSE(settings.getDockBookmark("org.example.atlas"));

    std::vector<std::string> keys;
    for (const auto& [key, value] : settings.loadSettings())
        keys.push_back(key);
    EXPECT_THAT(keys, ElementsAre("DockBookmarks", "FolderBackups", "SomebodysOwn"));
}

using SafetyCopies = RestoreStage;

TEST_F(SafetyCopies, OfAnEarlierRestoreGiveWayToAGoodLiveFileAlone) {
    const Bytes& launchpad = styled.launchpadDatabase;
    const Bytes half(launchpad.begin(), launchpad.begin() + static_cast<std::ptrdiff_t>(launchpad.size() / 2));
    // One that was cleaned has counted other changes than a copy of it.
    BackupContents cleaned = plain;
    for (const std::size_t counter : {27, 95})
        ++cleaned.launchpadDatabase[counter];
    const Bytes staleLog = *fileAt(databaseLog);
    change("DELETE FROM apps");
    const Bytes users = *launchpadAt(kDatabase);
    const auto usersDock = bytesOf("<plist><dict><key>autohide</key><true/></dict></plist>");

    const struct {
        const char* live;
        std::optional<BackupContents> contents;
        bool isKept = true;
    } cases[] = {
        {"missing", {}},
        {"empty", BackupContents()},
        {"cut", BackupContents{half, half}},
        {"the backup's", cleaned},
        {"the user's", BackupContents{Bytes(usersDock.begin(), usersDock.end()), users}, false},
    };

    for (const auto& [live, contents, isKept] : cases) {
        SCOPED_TRACE(live);
        startOver();
        failAt(newDockFile, cleaned);
        if (contents) {
            put(kDockFile, contents->dockPlist);
            put(kDatabase, contents->launchpadDatabase);
        }
        if (!isKept)
            put(MacPath(databaseCopy.string() + "-wal"), staleLog);
        log.clear();
        failAt(newDockFile, cleaned);
        EXPECT_EQ(fileAt(dockCopy), isKept ? styled.dockPlist : contents->dockPlist);
        EXPECT_EQ(launchpadAt(databaseCopy), isKept ? launchpad : users);
        for (const char* line :
             {"🧹 Removed existing dock safety backup", "🧹 Removed existing db safety backup",
              "✅ Created dock safety backup", "✅ Created launchpad safety backup"})
            EXPECT_EQ(log.has(line), !isKept) << line;
    }
}

TEST_F(SafetyCopies, HoldWhatIsInTheLogOfADatabaseThatIsInUse) {
    for (const std::string mode : {"NORMAL", "EXCLUSIVE"}) {
        SCOPED_TRACE(mode);
        startOver();
        auto other = std::optional(openDatabase());
        ASSERT_TRUE(other->execute(("PRAGMA locking_mode = " + mode).c_str()));
        ASSERT_TRUE(other->execute("PRAGMA wal_autocheckpoint = 0; UPDATE groups SET title = 'in the log'"));
        failAt(newDockFile, plain);
        EXPECT_THAT(rowsIn(*launchpadAt(databaseCopy)), testing::Contains(testing::HasSubstr("in the log")));

        EXPECT_TRUE(putBack(plain));
        other.reset();
        EXPECT_THAT(*mac.files.list(kDatabase.parent()), ElementsAre("db"));
        EXPECT_EQ(fileAt(kDatabase), plain.launchpadDatabase);
    }
}

TEST_F(SafetyCopies, HoldTheFilesAsTheyAreWhenTheyAreDamaged) {
    const Bytes damaged(5000, 'x');
    for (const MacPath& file : {kDockFile, kDatabase})
        put(file, damaged);
    failAt(newDockFile, plain);
    for (const MacPath& copy : {dockCopy, databaseCopy})
        EXPECT_EQ(fileAt(copy), damaged);
    EXPECT_TRUE(putBack(plain));
}

using RestoreLinks = RestoreStage;

TEST_F(RestoreLinks, AreNeverFollowedToWhatTheyLeadTo) {
    const MacPath victim("/victim");

    const std::set<MacPath> notEmptied{kDatabase.parent(), kDatabase.parent().parent()};
    for (const auto& [link, target] : {std::pair(kDatabase.parent(), victim),
                                       {kDatabase.parent().parent(), victim},
                                       {kDatabase, victim / "db"},
                                       {databaseCopy, victim / "db"},
                                       {dockCopy, victim / "db"},
                                       {newDatabase, victim / "db"},
                                       {kWrappers, victim},
                                       {kWrappers / "Other.app", victim},
                                       {kWrappers / "Atlas.app/Other", victim}}) {
        SCOPED_TRACE(link.string());
        startOver();
        ignoreFailure(mac.files.remove(victim));
        ASSERT_TRUE(mac.files.createFolder(victim / "db.d"));
        put(victim / "db.d/b", bytesOf("b"));
        put(victim / "db", styled.launchpadDatabase);
        ignoreFailure(mac.files.remove(link));
        ASSERT_TRUE(mac.files.createLink(link, target.string()));
        const FileTree before = treeOf(mac.files, victim), preferences = treeOf(mac.files, kDockFile.parent());
        const bool isRestored = bool(putBack(plain));
        EXPECT_EQ(isRestored, !notEmptied.contains(link));
        EXPECT_EQ(treeOf(mac.files, victim), before);
        if (isRestored)
            EXPECT_EQ(fileAt(kDatabase), plain.launchpadDatabase);
        else
            EXPECT_EQ(treeOf(mac.files, kDockFile.parent()), preferences);
        EXPECT_EQ(bool(mac.files.readLink(link)), !isRestored || link == kWrappers);
    }
}

} // namespace
