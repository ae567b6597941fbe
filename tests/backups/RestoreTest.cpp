#include "backups/RestoreStage.h"

#include <functional>

using namespace tavrik;
using namespace tavrik::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Restore : testing::Test, RestyledMac {
    /// What a restart of the Dock makes of the stores.
    void expectLookAfterRestart(const Look& before) {
        managers->launchpad.restartDock();
        clock.sleep(std::chrono::seconds(10));
        expectLook(volume, before);
    }

    int argumentCount = 0;
    QGuiApplication application{argumentCount, nullptr};
    LogRecorder log;
};

TEST_F(Restore, BringsBackTheLookOfBeforeOnThisMacAndOnAnEmptyOne) {
    const Look before(volume);
    BackupManager& backups = managers->backups;
    restyle();
    const Result<MacPath> ofStyled = backups.createBackup();
    ASSERT_TRUE(ofStyled);

    log.clear();
    EXPECT_TRUE(backups.restoreBackup(*ofStyled));
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
    expectLookAfterRestart(before);

    // What is restyled afterwards starts afresh, and can be undone as completely.
    restyle();
    EXPECT_TRUE(backups.restoreBackup(backups.backupsBaseURL() / BackupFolder::kOriginalState));
    expectLookAfterRestart(before);

    EXPECT_EQ(backups.listBackups().size(), 4u);
    for (const MacPath& backup : backups.listBackups()) {
        SCOPED_TRACE(backup.name());
        expectRestoresTo(*mac.files.read(backup), before);
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
    EXPECT_TRUE(putBack(known.styled));
    EXPECT_TRUE(settings.getDockBookmark("org.example.atlas"));
    EXPECT_TRUE(putBack(known.plain));
    EXPECT_FALSE(settings.getDockBookmark("org.example.atlas"));

    std::vector<std::string> keys;
    for (const auto& [key, value] : settings.loadSettings())
        keys.push_back(key);
    EXPECT_THAT(keys, ElementsAre("DockBookmarks", "FolderBackups", "SomebodysOwn"));
}

using RestoreFailures = RestoreStage;

TEST_F(RestoreFailures, AreToldAndStopWhatCouldNotBeFinished) {
    const std::string failed = "❌ Failed to restore backup files: ";
    const MacPath writeAheadLog = MacPath(kDatabase.string() + "-wal");

    const struct {
        const char* operation;
        MacPath path;
        std::string line;
        bool isRestored;
    } cases[] = {
        {"read", kDockFile, failed, false},
        {"replace", dockCopy, failed, false},
        {"replace", databaseCopy, failed, false},
        {"remove", kDockFile, failed, false},
        {"remove", writeAheadLog, "  ⚠️ Could not remove db-wal", false},
        {"list", kDatabase.parent(), "⚠️ Could not list db folder contents: ", false},
        {"replace", kDockFile, failed, false},
        {"read", kDatabase, failed, false},
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
        log.clear();
        EXPECT_EQ(bool(putBack(known.plain)), isRestored);
        EXPECT_TRUE(log.mentions(line));
        EXPECT_EQ(log.mentions(failed), !isRestored);
        EXPECT_EQ(log.has("✅ Backup restored successfully"), isRestored);
    }
}

TEST_F(RestoreFailures, IncludeADiskThatDoesNotKeepWhatWasWritten) {
    for (const MacPath& file : {kDockFile, kDatabase}) {
        SCOPED_TRACE(file.string());
        startOver();
        files.setRule([&](const FileOperation& operation) -> std::optional<int> {
            if (operation.name == "read" && operation.path == file && own.files.exists(databaseCopy))
                ignoreFailure(own.files.write(file, bytesOf("another")));
            return std::nullopt;
        });
        EXPECT_FALSE(putBack(known.plain));
        files.failNothing();
        EXPECT_EQ(fileAt(dockCopy), known.styled.dockPlist);
        EXPECT_EQ(launchpadAt(databaseCopy), known.styled.launchpadDatabase);
    }
}

using SafetyCopies = RestoreStage;

TEST_F(SafetyCopies, OfAnEarlierRestoreGiveWayToAGoodLiveFileAlone) {
    Bytes cut = known.styled.launchpadDatabase;
    cut.resize(cut.size() / 2);
    const auto put = [this](const Bytes& dockPlist, const Bytes& launchpad) {
        EXPECT_TRUE(mac.files.write(kDockFile, dockPlist));
        EXPECT_TRUE(mac.files.write(kDatabase, launchpad));
    };
    // One that was cleaned has counted other changes than a copy of it.
    BackupContents backup = known.plain;
    for (const std::size_t counter : {27, 95})
        ++backup.launchpadDatabase[counter];
    const Bytes staleLog = *fileAt(MacPath(kDatabase.string() + "-wal"));
    const Bytes otherDock =
        *plist::serialize(plist::Value(plist::Dictionary{{"autohide", true}}), plist::Format::binary);

    const struct {
        const char* live;
        std::function<void()> make;
        bool isKept;
    } cases[] = {
        {"missing", [] {}, true},
        {"empty", [&] { put({}, {}); }, true},
        {"cut", [&] { put(Bytes(100, 'x'), cut); }, true},
        {"the backup's", [&] { put(backup.dockPlist, backup.launchpadDatabase); }, true},
        {"the user's",
         [&] {
             put(otherDock, known.plain.launchpadDatabase);
             auto database =
                 sqlite::Connection::open(mac.volume.hostPath(kDatabase), sqlite::OpenMode::readWrite);
             EXPECT_TRUE(database->execute("DELETE FROM apps"));
             EXPECT_TRUE(mac.files.write(MacPath(databaseCopy.string() + "-wal"), staleLog));
         },
         false},
    };

    for (const auto& [live, make, isKept] : cases) {
        SCOPED_TRACE(live);
        startOver();
        failAt(newDockFile, backup);
        make();
        const auto before = launchpadAt(kDatabase);
        log.clear();
        failAt(newDockFile, backup);
        EXPECT_EQ(fileAt(dockCopy), isKept ? known.styled.dockPlist : otherDock);
        EXPECT_EQ(launchpadAt(databaseCopy), isKept ? known.styled.launchpadDatabase : before);
        std::vector<std::string> lines = log.lines();
        std::erase_if(lines, [](const std::string& line) { return !line.ends_with("safety backup"); });
        const std::vector<std::string> replaced{
            "🧹 Removed existing dock safety backup", "🧹 Removed existing db safety backup",
            "✅ Created dock safety backup", "✅ Created launchpad safety backup"};
        EXPECT_EQ(lines, isKept ? std::vector<std::string>() : replaced);
    }
}

TEST_F(SafetyCopies, HoldWhatIsInTheLogOfADatabaseThatIsInUse) {
    for (const char* mode : {"NORMAL", "EXCLUSIVE"}) {
        SCOPED_TRACE(mode);
        startOver();
        auto other = sqlite::Connection::open(mac.volume.hostPath(kDatabase), sqlite::OpenMode::readWrite);
        ASSERT_TRUE(other->execute(("PRAGMA locking_mode = " + std::string(mode)).c_str()));
        ASSERT_TRUE(other->execute("PRAGMA wal_autocheckpoint = 0; UPDATE groups SET title = 'in the log'"));
        failAt(newDockFile);

        auto copy = sqlite::openCopy(launchpadAt(databaseCopy).value_or(Bytes()));
        ASSERT_TRUE(copy);
        auto titles = copy->prepare("SELECT DISTINCT title FROM groups");
        ASSERT_EQ(titles.step(), sqlite::Step::row);
        EXPECT_EQ(titles.text(0), "in the log");

        EXPECT_TRUE(putBack(known.plain));
        other.reset();
        EXPECT_THAT(*mac.files.list(kDatabase.parent()), ElementsAre("db"));
        EXPECT_EQ(fileAt(kDatabase), known.plain.launchpadDatabase);
    }
}

TEST_F(SafetyCopies, HoldTheFilesAsTheyAreWhenTheyAreDamaged) {
    const Bytes damaged(5000, 'x');
    EXPECT_TRUE(mac.files.write(kDockFile, damaged));
    EXPECT_TRUE(mac.files.write(kDatabase, damaged));
    failAt(newDockFile);
    EXPECT_EQ(fileAt(dockCopy), damaged);
    EXPECT_EQ(fileAt(databaseCopy), damaged);
    EXPECT_TRUE(putBack(known.plain));
}

using RestoreLinks = RestoreStage;

TEST_F(RestoreLinks, AreNeverFollowedToWhatTheyLeadTo) {
    const MacPath victim("/victim");

    const struct {
        MacPath link;
        MacPath target;
        const char* line;
        bool isRestored;
    } cases[] = {
        {kDatabase.parent(), victim, "❌ Failed to restore backup files: ", false},
        {kDatabase.parent().parent(), victim, "❌ Failed to restore backup files: ", false},
        {kDatabase, victim / "db", "✅ Created launchpad safety backup", true},
        {databaseCopy, victim / "db", "🧹 Removed existing db safety backup", true},
        {dockCopy, victim / "db", "🧹 Removed existing dock safety backup", true},
        {newDatabase, victim / "db", "🧹 Cleared db folder before restore", true},
        {kWrappers, victim, "⚠️ Could not list Tavrik folder contents: ", true},
        {kWrappers / "Other.app", victim, "🧹 Cleared ~/Applications/Tavrik folder (4 items)", true},
        {kWrappers / "Atlas.app/Other", victim, "🧹 Cleared ~/Applications/Tavrik folder (3 items)", true},
    };

    for (const auto& [link, target, line, isRestored] : cases) {
        SCOPED_TRACE(link.string());
        startOver();
        ignoreFailure(mac.files.remove(victim));
        ASSERT_TRUE(mac.files.createFolder(victim / "db.d"));
        ASSERT_TRUE(mac.files.create(victim / "db.d/b", bytesOf("b")));
        ASSERT_TRUE(mac.files.create(victim / "db", known.styled.launchpadDatabase));
        ignoreFailure(mac.files.remove(link));
        ASSERT_TRUE(mac.files.createLink(link, target.string()));
        const FileTree before = treeOf(mac.files, victim), preferences = treeOf(mac.files, kDockFile.parent());
        log.clear();
        EXPECT_EQ(bool(putBack(known.plain)), isRestored);
        EXPECT_EQ(treeOf(mac.files, victim), before);
        EXPECT_TRUE(log.mentions(line));
        if (isRestored)
            EXPECT_EQ(fileAt(kDatabase), known.plain.launchpadDatabase);
        else
            EXPECT_EQ(treeOf(mac.files, kDockFile.parent()), preferences);
    }
}

} // namespace
