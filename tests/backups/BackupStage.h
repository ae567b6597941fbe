#pragma once

#include "app/Managers.h"
#include "platform/PathRules.h"
#include "platform/SqliteCopy.h"
#include "platform/practice/Layout.h"
#include "support/FileTree.h"
#include "support/LogRecorder.h"
#include "support/practice/VirtualMac.h"

#include <QGuiApplication>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <optional>
#include <tuple>

namespace tavrik::test {

inline const MacPath kDatabase = launchpadDatabasePath(practice::kTemporaryFolder);
inline const MacPath kDockFile = dockPreferencesPath(practice::kHome);
inline const MacPath kWrappers = wrapperFolder(practice::kHome);

/// A furnished Mac in virtual time and the whole program on it.
class BackupStage : public testing::Test, protected VirtualMac {
protected:
    BackupStage() { managers.emplace(mac); }

    BackupManager& backups() { return managers->backups; }

    sqlite::Connection openDatabase() {
        return *sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite);
    }

    void change(const char* sql) { EXPECT_TRUE(openDatabase().execute(sql)) << sql; }

    /// Nothing when it cannot be read.
    std::optional<Bytes> fileAt(const MacPath& path) const {
        auto content = own.files.read(path);
        return content ? std::optional(std::move(*content)) : std::nullopt;
    }

    std::optional<Bytes> launchpadAt(const MacPath& path) const {
        auto content = sqlite::copyOf(volume.host(path));
        return content ? std::optional(std::move(*content)) : std::nullopt;
    }

    void put(const MacPath& path, ByteView content) {
        EXPECT_TRUE(own.files.write(path, content)) << path.string();
    }

    BackupContents live() const { return {*fileAt(kDockFile), *launchpadAt(kDatabase)}; }

    BackupContents contents(const MacPath& backup) {
        return std::get<BackupContents>(backups().readBackup(backup));
    }

    /// Every row of every table as text, with the statements that made tables, triggers and indexes; nothing
    /// but a line of the error for what is no sound database.
    static std::vector<std::string> rowsIn(const Bytes& database) {
        auto copy = sqlite::openCopy(database);
        if (const Status sound = copy ? sqlite::checkIntegrity(*copy) : Status(copy.error()); !sound)
            return {sound.error().description};
        std::vector<std::string> rows;
        for (const std::string table : {"sqlite_master", "dbinfo", "items", "apps", "groups",
                                        "downloading_apps", "image_cache", "categories", "app_sources"}) {
            // A page that was made anew and a trigger that was made again may stand elsewhere in the file.
            auto select = copy->prepare("SELECT * FROM " + table + " ORDER BY 1, 2");
            while (select.step() == sqlite::Step::row) {
                std::string row = table;
                for (int column = 0; column < 10; ++column)
                    if (const auto value = select.blob(column);
                        value && (table != "sqlite_master" || column != 3))
                        row += "|" + std::string(textOf(*value));
                rows.push_back(row);
            }
        }
        return rows;
    }

    static ApplicationInfo application(const std::string& bundleID, const MacPath& path) {
        ApplicationInfo app;
        std::tie(app.name, app.bundleID, app.path) = std::tuple(path.stem(), bundleID, path);
        return app;
    }

    void wrap(const ApplicationInfo& app) {
        QImage icon(64, 64, QImage::Format_ARGB32_Premultiplied);
        icon.fill(Qt::red);
        managers->settings.setSelectedIcon(app.bundleID, 0);
        EXPECT_TRUE(managers->wrappers.createWrapper(app, icon));
    }

    /// Two wrappers, a style without small letters, and another style that is only staged.
    void restyle() {
        wrap(atlas);
        wrap(tips);
        managers->fonts.applyFont("Small Caps");
        managers->pendingChanges.noteApplied();
        managers->pendingChanges.setPendingFont("Mathematical Bold");
    }

    const ApplicationInfo atlas = application("org.example.atlas", MacPath("/Applications/Atlas.app"));
    /// Its row carries the hidden flag, and it has no tile.
    const ApplicationInfo tips = application("com.apple.tips", MacPath("/System/Applications/Tips.app"));
    int argumentCount = 0;
    QGuiApplication qt{argumentCount, nullptr};
    std::optional<Managers> managers;
    LogRecorder log;
};

} // namespace tavrik::test
