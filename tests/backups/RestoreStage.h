#pragma once

#include "backups/Restoring.h"
#include "platform/PosixFileManager.h"
#include "platform/SqliteCopy.h"
#include "platform/Volume.h"
#include "practice/dock/Dock.h"
#include "support/FileTree.h"
#include "support/LogRecorder.h"
#include "support/practice/VirtualMac.h"

#include <QGuiApplication>

#include <cerrno>
#include <optional>
#include <tuple>

namespace tavrik::test {

/// A furnished Mac in virtual time that the program restyles. Its first backup is of the time before.
struct RestyledMac : VirtualMac {
    RestyledMac() {
        // The title of an application that is gone does not get its capitals back.
        auto database = sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite);
        EXPECT_TRUE(
            database->execute("DELETE FROM items WHERE rowid IN (SELECT item_id FROM apps WHERE bundleid = "
                              "'org.example.windlass')"));
        EXPECT_TRUE(managers->backups.createBackup());
    }

    /// An application of the Dock, one that carries the hidden flag, a style without small letters, and another
    /// style that is only staged.
    void restyle() {
        QImage icon(64, 64, QImage::Format_ARGB32_Premultiplied);
        icon.fill(Qt::red);
        ApplicationInfo app;
        for (const auto& [name, bundleID, path] :
             {std::tuple("Atlas", "org.example.atlas", "/Applications/Atlas.app"),
              std::tuple("Tips", "com.apple.tips", "/System/Applications/Tips.app")}) {
            std::tie(app.name, app.bundleID, app.path) = std::tuple(name, bundleID, MacPath(path));
            managers->settings.setSelectedIcon(bundleID, 0);
            EXPECT_TRUE(managers->wrappers.createWrapper(app, icon));
        }
        managers->fonts.applyFont("Small Caps");
        managers->pendingChanges.noteApplied();
        managers->pendingChanges.setPendingFont("Mathematical Bold");
    }

    std::optional<Managers> managers{std::in_place, mac};
};

/// The database at a path as it is now; nothing when it cannot be used.
inline std::optional<Bytes> databaseAt(const Mac& mac, const MacPath& path) {
    auto content = sqlite::copyOf(mac.volume.hostPath(path));
    return content ? std::optional(std::move(*content)) : std::nullopt;
}

/// What a restore touches of a restyled Mac whose power went: the database has a write-ahead log beside it.
struct Restyled {
    Restyled() {
        RestyledMac mac;
        backup = mac.managers->backups.listBackups().front();
        plain = std::get<BackupContents>(mac.managers->backups.readBackup(backup));
        mac.restyle();
        styled = {*mac.mac.files.read(kDockFile), *databaseAt(mac.mac, kDatabase)};
        EXPECT_TRUE(mac.mac.tools.run(MacPath("/usr/bin/killall"), {"Dock"}));
        copyParts(mac.volume.root(), folder.path());
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

    TemporaryFolder folder;
    MacPath backup;
    BackupContents plain;
    BackupContents styled;
};

/// A Mac without a Dock that can be put into that state again and again.
class RestoreStage : public testing::Test, protected VirtualMac {
protected:
    RestoreStage() {
        constexpr double kADay = 86'400;
        EXPECT_TRUE(practice::writeDockBehaviour(volume.root(), {.restartDelay = kADay}));
        EXPECT_TRUE(mac.tools.run(MacPath("/usr/bin/killall"), {"Dock"}));
        startOver();
    }

    void startOver() {
        managers.reset();
        files.failNothing();
        Restyled::copyParts(known.folder.path(), volume.root());
        managers.emplace(mac);
    }

    Status restore() { return managers->backups.restoreBackup(known.backup); }

    /// Without the snapshot of the present state.
    Status putBack(const BackupContents& contents) {
        return BackupRestore(mac, managers->settings, managers->dock, managers->pendingChanges, kDatabase)
            .run(contents);
    }

    /// A restore that fails when it is about to make this file.
    void failAt(const MacPath& file, const BackupContents& contents = restyled().plain) {
        files.failOn("create", file, ENOSPC);
        EXPECT_FALSE(putBack(contents));
        files.failNothing();
        managers.emplace(mac);
    }

    static const Restyled& restyled() {
        static const Restyled state;
        return state;
    }

    std::optional<Bytes> fileAt(const MacPath& path) const {
        const auto content = own.files.read(path);
        return content ? std::optional(*content) : std::nullopt;
    }

    std::optional<Bytes> launchpadAt(const MacPath& path) const { return databaseAt(mac, path); }

    int argumentCount = 0;
    QGuiApplication application{argumentCount, nullptr};
    const Restyled& known = restyled();
    const MacPath dockCopy{kDockFile.string() + ".pre-restore-backup"};
    const MacPath databaseCopy{kDatabase.string() + ".pre-restore-backup"};
    const MacPath newDockFile{kDockFile.string() + ".new"};
    const MacPath newDatabase{kDatabase.string() + ".new"};
    std::optional<Managers> managers;
    LogRecorder log;
};

} // namespace tavrik::test
