#include "backups/BackupManager.h"

#include "app/Managers.h"
#include "backups/BackupArchive.h"
#include "backups/BackupSummary.h"
#include "platform/PathRules.h"
#include "platform/SqliteCopy.h"
#include "platform/practice/Layout.h"
#include "support/FileTree.h"
#include "support/LogRecorder.h"
#include "support/practice/VirtualMac.h"

#include <QCoreApplication>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tavrik::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

/// A furnished Mac in virtual time with the program on it.
class BackupManagerTest : public testing::Test, protected VirtualMac {
protected:
    Bytes read(const MacPath& file) const { return *own.files.read(file); }

    void write(const MacPath& file, const std::string& text) {
        ASSERT_TRUE(own.files.write(file, bytesOf(text)));
    }

    BackupContents contents(const MacPath& backup) {
        return std::get<BackupContents>(managers.backups.readBackup(backup));
    }

    /// The live files and the wrapper folder.
    FileTree live() const {
        FileTree tree = treeOf(own.files, database.parent());
        tree.merge(treeOf(own.files, dockFile.parent()));
        return tree;
    }

    FileTree kept() const { return own.files.exists(folder) ? treeOf(own.files, folder) : FileTree(); }

    /// A sealed file with these members beside the backups.
    MacPath sealed(const std::string& name, const ArchiveMembers& members) {
        const MacPath file = practice::kHome / name;
        const BackupContainer container(mac.machine, mac.random);
        EXPECT_TRUE(own.files.write(file, *container.seal(*createArchive(members))));
        return file;
    }

    int argc = 0;
    QCoreApplication application{argc, nullptr};
    LogRecorder log;
    Managers managers{mac};
    BackupManager& backups = managers.backups;
    const MacPath folder = backups.backupsBaseURL();
    const MacPath database = launchpadDatabasePath(practice::kTemporaryFolder);
    const MacPath dockFile = dockPreferencesPath(practice::kHome);
};

TEST_F(BackupManagerTest, KeepsTheMacAsItWasBeforeItWasRestyled) {
    const auto original = backups.createBackup();
    ASSERT_TRUE(original) << original.error().description;
    EXPECT_EQ(*original, folder / BackupFolder::kOriginalState);
    EXPECT_TRUE(log.has("📌 Creating Original State backup"));
    const auto untouched = summaryOf(contents(*original));
    EXPECT_TRUE(differences(*untouched, *summaryOf({read(dockFile), read(database)})).empty());

    QImage icon(64, 64, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::red);
    ApplicationInfo atlas;
    std::tie(atlas.name, atlas.bundleID, atlas.path) =
        std::tuple("Atlas", "org.example.atlas", MacPath("/Applications/Atlas.app"));
    managers.settings.setSelectedIcon(atlas.bundleID, 0);
    ASSERT_TRUE(managers.wrappers.createWrapper(atlas, icon));
    managers.fonts.applyFont("Small Caps");
    const auto next = backups.createBackup();
    ASSERT_TRUE(next);
    EXPECT_TRUE(differences(*untouched, *summaryOf(contents(*next))).empty());
    EXPECT_EQ(backups.listBackups().size(), 2u);

    managers.settings.setBackupRetentionCount(2);
    for (int number = 0; number < 3; ++number)
        ASSERT_TRUE(backups.createBackup());
    EXPECT_EQ(backups.listBackups().size(), 3u);
    EXPECT_FALSE(own.files.exists(*next));
}

TEST_F(BackupManagerTest, MakesNoBackupOfStoresThatCouldNotBeRestored) {
    Bytes damaged = read(database);
    std::fill(damaged.begin() + 8192, damaged.begin() + 16384, 0xA5);
    const std::string noDock = "⚠️ Dock plist not found at: " + dockFile.string();
    const std::string noDatabase = "⚠️ Launchpad database not found at: " + database.string();
    const std::string failed = "❌ Backup creation failed: ";

    const struct {
        MacPath file;
        std::optional<std::string> content; ///< none: removed
        std::string line;
    } cases[] = {
        {dockFile, {}, noDock},
        {dockFile, "", noDock},
        {dockFile, "<plist><array/></plist>", failed + dockFile.string() + " is damaged"},
        {database.parent(), {}, noDatabase},
        {database, "", noDatabase},
        {database, "no database at all, but long enough" + std::string(4096, '-'), noDatabase},
        {database, std::string(textOf(damaged)), failed + database.string() + " is damaged"},
    };

    const BackupContents good{read(dockFile), read(database)};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.line + " " + each.content.value_or("(removed)").substr(0, 20));
        if (each.content)
            write(each.file, *each.content);
        else
            ASSERT_TRUE(own.files.remove(each.file));
        log.clear();
        EXPECT_FALSE(backups.createBackup());
        EXPECT_TRUE(log.has(each.line));
        EXPECT_THAT(kept(), IsEmpty());
        EXPECT_EQ(own.files.exists(each.file), each.content.has_value()) << "nothing is created by looking";
        ASSERT_TRUE(own.files.createFolder(database.parent()));
        ASSERT_TRUE(own.files.write(dockFile, good.dockPlist));
        ASSERT_TRUE(own.files.write(database, good.launchpadDatabase));
    }
    {
        auto other = *sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite);
        ASSERT_TRUE(other.execute("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE"));
        EXPECT_FALSE(backups.createBackup());
        EXPECT_FALSE(backups.restoreBackup(
            sealed("good", {{kDockMember, good.dockPlist}, {kLaunchpadMember, good.launchpadDatabase}})));
        EXPECT_TRUE(log.has(failed + database.string() + ": database is locked"));
    }
    // A system update took away columns, but the database is sound.
    ASSERT_TRUE(sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite)
                    ->execute("ALTER TABLE apps RENAME COLUMN bookmark TO place"));
    EXPECT_EQ(backups.createBackup()->name(), BackupFolder::kOriginalState);
}

TEST_F(BackupManagerTest, TakesWhatTheDocksLogHoldsAndNothingUncommitted) {
    auto dock = *sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite);
    ASSERT_TRUE(dock.execute("PRAGMA journal_mode = WAL; PRAGMA wal_autocheckpoint = 0;"
                             "UPDATE groups SET title = 'Committed' WHERE title IS NOT NULL;"
                             "BEGIN; UPDATE groups SET title = 'Half done' WHERE title IS NOT NULL"));
    auto copy = sqlite::openCopy(contents(*backups.createBackup()).launchpadDatabase);
    auto titles = copy->prepare("SELECT DISTINCT title FROM groups WHERE title IS NOT NULL");
    ASSERT_EQ(titles.step(), sqlite::Step::row);
    EXPECT_EQ(titles.text(0), "Committed");
    EXPECT_EQ(titles.step(), sqlite::Step::done);
}

TEST_F(BackupManagerTest, KeepsEarlierBackupsWhateverFails) {
    ASSERT_TRUE(backups.createBackup() && backups.createBackup());
    const FileTree before = kept();
    files.forget();
    const MacPath whole = *backups.createBackup();
    const std::size_t operations = files.count();
    ASSERT_TRUE(own.files.remove(whole));
    std::size_t failures = 0;
    for (std::size_t number = 1; number <= operations; ++number) {
        for (const Times times : {Times::once, Times::forGood}) {
            SCOPED_TRACE(number);
            files.failAt(number, ENOSPC, times);
            const auto made = backups.createBackup();
            files.failNothing();
            failures += made ? 0 : 1;
            // A disk that is broken for good does not let the rest be removed either.
            if (times == Times::forGood)
                backups.removeLeftovers();
            for (const MacPath& backup : backups.listBackups()) {
                if (before.contains(backup.name()))
                    continue;
                EXPECT_TRUE(times == Times::forGood || (made && *made == backup));
                EXPECT_FALSE(contents(backup).dockPlist.empty());
                ASSERT_TRUE(own.files.remove(backup));
            }
            ASSERT_THAT(differences(before, kept()), IsEmpty());
            backups.removeLeftovers();
            ASSERT_THAT(*own.files.list(MacPath(practice::kTemporaryFolder)), IsEmpty());
        }
    }
    EXPECT_GT(failures, operations / 2);
}

TEST_F(BackupManagerTest, DropsABackupThatIsNotWhatWasSealed) {
    const MacPath original = *backups.createBackup();
    write(dockFile, "<plist><dict><key>another</key><true/></dict></plist>");
    const FileTree before = kept();
    const std::vector<std::function<Bytes(Bytes)>> faults{
        [](Bytes bytes) { return bytes[bytes.size() / 2] ^= 1, bytes; },
        [](Bytes bytes) { return bytes.resize(bytes.size() - 1), bytes; },
        [&](const Bytes&) { return read(original); }, // sound, but another state
    };
    for (const auto& tamper : faults) {
        files.setRule([&](const FileOperation& next) -> std::optional<int> {
            const bool isReadAgain = next.name == "read" && next.path.parent() == folder;
            if (isReadAgain && !own.files.write(next.path, tamper(read(next.path))))
                return EROFS;
            return std::nullopt;
        });
        EXPECT_THAT(backups.createBackup().error().description, HasSubstr("does not hold what was written"));
        EXPECT_THAT(differences(before, kept()), IsEmpty());
    }
}

TEST_F(BackupManagerTest, FindsBackupsByNameAndNothingElse) {
    const MacPath original = *backups.createBackup();
    write(folder.parent() / "secret.encrypted", "x");
    EXPECT_TRUE(*backups.find("Original State") == original && *backups.find(original.name()) == original);
    for (const auto* name : {"", "..", "../secret", "/secret", "Original", "original state"})
        EXPECT_FALSE(backups.find(name)) << name;
}

TEST_F(BackupManagerTest, RefusesToRestoreWhatIsNoBackupAndTouchesNothing) {
    const Bytes dock = read(dockFile);
    const Bytes launchpad = read(database);
    const Bytes garbage(600, 7);
    write(practice::kHome / "short", "x");
    Bytes flipped = read(sealed("flipped", {{kDockMember, dock}, {kLaunchpadMember, launchpad}}));
    flipped[20] ^= 1;
    write(practice::kHome / "flipped", std::string(textOf(flipped)));
    const BackupContainer container(mac.machine, mac.random);
    ASSERT_TRUE(own.files.write(practice::kHome / "sealed", *container.seal(garbage)));
    sealed("no dock", {{kLaunchpadMember, launchpad}});
    sealed("no database", {{kDockMember, dock}});
    sealed("bad dock", {{kDockMember, garbage}, {kLaunchpadMember, launchpad}});
    sealed("bad database", {{kDockMember, dock}, {kLaunchpadMember, garbage}});
    const FileTree before = live();
    for (const auto& [name, line] : std::vector<std::pair<std::string, std::string>>{
             {"missing", "❌ Failed to decrypt backup"},
             {"short", "❌ Failed to decrypt backup"},
             {"flipped", "❌ Failed to decrypt backup"},
             {"sealed", "❌ Failed to extract backup archive"},
             {"no dock", "❌ Dock plist not found in backup"},
             {"no database", "❌ Launchpad database not found in backup"},
             {"bad dock", "❌ Failed to restore backup files: " + inWords(BackupFault::damagedDockPlist)},
             {"bad database", "❌ Failed to restore backup files: " + inWords(BackupFault::damagedDatabase)}}) {
        EXPECT_FALSE(backups.restoreBackup(practice::kHome / name));
        EXPECT_TRUE(log.has("🔄 Restoring backup from: " + name));
        EXPECT_EQ(log.lines().back(), line);
    }
    EXPECT_THAT(differences(before, live()), IsEmpty());
    EXPECT_THAT(kept(), IsEmpty());
}

TEST_F(BackupManagerTest, KeepsThePresentStateBeforeARestore) {
    const BackupContents first{read(dockFile), *sqlite::copyOf(volume.launchpadDatabase())};
    const MacPath old = *backups.createBackup();
    const MacPath chosen = *backups.createBackup();
    managers.settings.setBackupRetentionCount(1);
    write(dockFile, "<plist><dict><key>present</key><true/></dict></plist>");
    const Bytes present = read(dockFile);
    int notified = 0;
    const auto observation = managers.notificationCenter.observe(
        std::string(kReloadApplicationsAfterBackupRestore), [&] { ++notified; });

    // Not without room for it.
    const FileTree before = live();
    files.failOn("create", {}, ENOSPC);
    EXPECT_THAT(backups.restoreBackup(chosen).error().description, HasSubstr("Nothing was changed"));
    files.failNothing();
    EXPECT_THAT(differences(before, live()), IsEmpty());
    EXPECT_EQ(notified, 0);

    ASSERT_TRUE(backups.restoreBackup(chosen));
    EXPECT_EQ(notified, 1);
    EXPECT_EQ(read(dockFile), contents(chosen).dockPlist) << "spared by the rotation";
    ASSERT_EQ(backups.listBackups().size(), 3u);
    const MacPath newest = backups.listBackups().back();
    EXPECT_EQ(contents(newest).dockPlist, present);

    // Where there is no sound state, there is nothing to keep.
    write(database, "");
    ASSERT_TRUE(backups.restoreBackup(old));
    EXPECT_EQ(backups.listBackups().size(), 3u);
    EXPECT_EQ(read(dockFile), first.dockPlist);
    EXPECT_EQ(read(database), first.launchpadDatabase);
}

} // namespace
} // namespace tavrik::test
