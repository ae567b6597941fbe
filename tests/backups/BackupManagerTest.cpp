#include "BackupStage.h"

namespace tavrik::test {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;

struct BackupManagerTest : BackupStage {
    FileTree kept() const { return own.files.exists(folder) ? treeOf(own.files, folder) : FileTree(); }

    const MacPath folder = backups().backupsBaseURL();
    const std::string_view present = "<plist><dict><key>present</key><true/></dict></plist>";
};

TEST_F(BackupManagerTest, MakesNoBackupOfStoresThatCouldNotBeRestored) {
    const BackupContents good = live();
    std::string damaged(textOf(good.launchpadDatabase));
    std::fill(damaged.begin() + 8192, damaged.begin() + 16384, 'x');
    const std::string noDock = "⚠️ Dock plist not found at: " + kDockFile.string();
    const std::string noDatabase = "⚠️ Launchpad database not found at: " + kDatabase.string();
    const std::string failed = "❌ Backup creation failed: ";

    const struct {
        MacPath file;
        std::optional<std::string> content; ///< none: removed
        std::string line;
    } cases[] = {
        {kDockFile, {}, noDock},
        {kDockFile, "", noDock},
        {kDockFile, "<plist><array/></plist>", failed + kDockFile.string() + " is damaged"},
        {kDatabase.parent(), {}, noDatabase},
        {kDatabase, "", noDatabase},
        {kDatabase, std::string(5000, '-'), noDatabase},
        {kDatabase, damaged, failed + kDatabase.string() + " is damaged"},
    };

    for (const auto& [file, content, line] : cases) {
        SCOPED_TRACE(line + " " + content.value_or("(removed)").substr(0, 20));
        EXPECT_TRUE(content ? own.files.write(file, bytesOf(*content)) : own.files.remove(file));
        log.clear();
        EXPECT_FALSE(backups().createBackup());
        EXPECT_TRUE(log.has(line));
        EXPECT_THAT(kept(), IsEmpty());
        EXPECT_EQ(own.files.exists(file), content.has_value()) << "nothing is created by looking";
        ASSERT_TRUE(own.files.createFolder(kDatabase.parent()));
        put(kDockFile, good.dockPlist);
        put(kDatabase, good.launchpadDatabase);
    }
    auto other = std::optional(openDatabase());
    ASSERT_TRUE(other->execute("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE"));
    EXPECT_FALSE(backups().createBackup());
    EXPECT_TRUE(log.has(failed + kDatabase.string() + ": database is locked"));
    other.reset();
    // A system update took away columns, but the database is sound.
    change("ALTER TABLE apps RENAME COLUMN bookmark TO place");
    EXPECT_EQ(backups().createBackup()->name(), BackupFolder::kOriginalState);
}

TEST_F(BackupManagerTest, TakesWhatTheDocksLogHoldsAndNothingUncommitted) {
    auto dock = openDatabase();
    ASSERT_TRUE(dock.execute("PRAGMA journal_mode = WAL; PRAGMA wal_autocheckpoint = 0;"
                             "UPDATE groups SET title = 'Committed'; BEGIN;"
                             "UPDATE groups SET title = 'Half done' WHERE item_id % 2 = 0"));
    const auto rows = rowsIn(contents(*backups().createBackup()).launchpadDatabase);
    EXPECT_THAT(rows, Contains(HasSubstr("Committed")));
    EXPECT_THAT(rows, Not(Contains(HasSubstr("Half done"))));
}

TEST_F(BackupManagerTest, KeepsEarlierBackupsWhateverFails) {
    ASSERT_TRUE(backups().createBackup() && backups().createBackup());
    const FileTree before = kept();
    files.forget();
    const MacPath whole = *backups().createBackup();
    const std::size_t operations = files.count();
    ASSERT_TRUE(own.files.remove(whole));
    std::size_t failures = 0;
    for (std::size_t number = 1; number <= operations; ++number) {
        for (const Times times : {Times::once, Times::forGood}) {
            SCOPED_TRACE(number);
            files.failAt(number, ENOSPC, times);
            const auto made = backups().createBackup();
            files.failNothing();
            failures += made ? 0 : 1;
            // A disk that is broken for good does not let the rest be removed either.
            if (times == Times::forGood)
                backups().removeLeftovers();
            for (const MacPath& backup : backups().listBackups()) {
                if (before.contains(backup.name()))
                    continue;
                EXPECT_TRUE(times == Times::forGood || (made && *made == backup));
                EXPECT_FALSE(contents(backup).dockPlist.empty());
                ASSERT_TRUE(own.files.remove(backup));
            }
            ASSERT_THAT(differences(before, kept()), IsEmpty());
            backups().removeLeftovers();
            ASSERT_THAT(*own.files.list(MacPath(practice::kTemporaryFolder)), IsEmpty());
        }
    }
    EXPECT_GT(failures, operations / 2);
}

TEST_F(BackupManagerTest, DropsABackupThatIsNotWhatWasSealed) {
    const Bytes original = *fileAt(*backups().createBackup());
    put(kDockFile, bytesOf(present));
    const FileTree before = kept();
    for (const Bytes& wrong : {Bytes(original.begin(), original.end() - 1), original}) { // another sound state
        files.setRule([&](const FileOperation& next) -> std::optional<int> {
            if (next.name == "read" && next.path.parent() == folder)
                put(next.path, wrong);
            return std::nullopt;
        });
        EXPECT_THAT(backups().createBackup().error().description, HasSubstr("does not hold what was written"));
        EXPECT_THAT(differences(before, kept()), IsEmpty());
    }
}

TEST_F(BackupManagerTest, KeepsThePresentStateBeforeARestore) {
    const BackupContents first = live();
    const MacPath old = *backups().createBackup();
    const MacPath chosen = *backups().createBackup();
    managers->settings.setBackupRetentionCount(1);
    put(kDockFile, bytesOf(present));
    int notified = 0;
    const auto observation = managers->notificationCenter.observe(
        std::string(kReloadApplicationsAfterBackupRestore), [&] { ++notified; });

    // Not without room for it.
    const FileTree before = treeOf(volume.root());
    files.failOn("create", {}, ENOSPC);
    EXPECT_THAT(backups().restoreBackup(chosen).error().description, HasSubstr("Nothing was changed"));
    files.failNothing();
    EXPECT_THAT(differences(before, treeOf(volume.root())), IsEmpty());
    EXPECT_EQ(notified, 0);

    ASSERT_TRUE(backups().restoreBackup(chosen)) << "spared by the rotation";
    EXPECT_EQ(notified, 1);
    EXPECT_EQ(fileAt(kDockFile), contents(chosen).dockPlist);
    ASSERT_EQ(backups().listBackups().size(), 3u);
    EXPECT_EQ(textOf(contents(backups().listBackups().back()).dockPlist), present);

    // Where there is no sound state, there is nothing to keep.
    put(kDatabase, {});
    ASSERT_TRUE(backups().restoreBackup(old));
    EXPECT_EQ(backups().listBackups().size(), 3u);
    EXPECT_EQ(fileAt(kDockFile), first.dockPlist);
    EXPECT_EQ(fileAt(kDatabase), first.launchpadDatabase);

    auto other = openDatabase();
    ASSERT_TRUE(other.execute("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE"));
    EXPECT_FALSE(backups().restoreBackup(old)) << "that state is sound";
}

} // namespace
} // namespace tavrik::test
