#pragma once

#include "BackupStage.h"
#include "platform/PosixFileManager.h"
#include "practice/dock/Dock.h"

namespace tavrik::test {

/// A restyled Mac whose power went: it has no Dock, and there is a log beside the database. It can be put into
/// that state again and again.
class RestoreStage : public BackupStage {
protected:
    RestoreStage() {
        constexpr double kADay = 86'400;
        backup = *backups().createBackup();
        plain = contents(backup);
        restyle();
        styled = live();
        EXPECT_TRUE(practice::writeDockBehaviour(volume.root(), {.restartDelay = kADay}));
        EXPECT_TRUE(mac.tools.run(MacPath("/usr/bin/killall"), {"Dock"}));
        copyParts(volume.root(), known.path());
        startOver();
    }

    static void copyParts(const HostPath& from, const HostPath& to) {
        PosixFileManager host{HostPath("/")};
        for (const MacPath& part :
             {kDatabase.parent().parent(), kDockFile.parent(), kWrappers, practice::kApplicationSupport}) {
            const MacPath target(to.string() + part.string());
            ignoreFailure(host.remove(target));
            EXPECT_TRUE(host.createFolder(target.parent()));
            EXPECT_TRUE(host.copy(MacPath(from.string() + part.string()), target)) << part.string();
        }
    }

    void startOver() {
        managers.reset();
        files.failNothing();
        copyParts(known.path(), volume.root());
        managers.emplace(mac);
        log.clear();
    }

    Status restore() { return backups().restoreBackup(backup); }

    /// Without the snapshot of the present state.
    Status putBack(const BackupContents& contents) {
        return BackupRestore(mac, managers->settings, managers->dock, managers->pendingChanges, kDatabase)
            .run(contents);
    }

    /// A restore that fails when it is about to make this file.
    void failAt(const MacPath& file, const BackupContents& contents) {
        files.failOn("create", file, ENOSPC);
        EXPECT_FALSE(putBack(contents));
        files.failNothing();
        managers.emplace(mac);
    }

    const MacPath dockCopy{kDockFile.string() + ".pre-restore-backup"};
    const MacPath databaseCopy{kDatabase.string() + ".pre-restore-backup"};
    const MacPath newDockFile{kDockFile.string() + ".new"};
    const MacPath newDatabase{kDatabase.string() + ".new"};
    const MacPath databaseLog{kDatabase.string() + "-wal"};
    TemporaryFolder known;
    MacPath backup;
    BackupContents plain;
    BackupContents styled;
};

} // namespace tavrik::test
