#pragma once

#include "model/SettingsManager.h"
#include "model/UnsupportedAppsManager.h"
#include "platform/Bookmarks.h"
#include "platform/Sqlite.h"
#include "practice/furnish/LaunchpadSchema.h"
#include "support/LogRecorder.h"
#include "support/SmallMac.h"
#include "system/DatabaseManager.h"
#include "system/IconManager.h"

#include <gtest/gtest.h>

namespace tavrik::test {

/// A hand-made Launchpad database with the real tables and triggers.
class LaunchpadSample : public testing::Test {
protected:
    LaunchpadSample() {
        ignoreFailure(small.files.createFolder(database.launchpadDatabasePath().parent()));
        connection.emplace(*sqlite::Connection::open(
            small.mac.volume.hostPath(database.launchpadDatabasePath()), sqlite::OpenMode::readWriteCreate));
        run("PRAGMA journal_mode=WAL");
        run(practice::kLaunchpadSchema);
        run("INSERT OR REPLACE INTO dbinfo VALUES ('ignore_items_update_triggers', '0')");
    }

    void run(const std::string& sql) {
        ASSERT_TRUE(connection->execute(sql.c_str())) << connection->lastError();
    }

    /// A row like "title, identifier, flags, path": its bundle is made, its bookmark leads there.
    void addApp(std::int64_t row, const std::string& title, std::optional<std::string> identifier,
                std::optional<int> flags, const MacPath& bundle) {
        ignoreFailure(small.files.createFolder(bundle));
        addRow(row, title, std::move(identifier), flags, *small.mac.bookmarks.make(bundle));
    }

    void addRow(std::int64_t row, const std::string& title, std::optional<std::string> identifier,
                std::optional<int> flags, std::optional<Bytes> bookmark) {
        const std::string number = std::to_string(row);
        run("UPDATE dbinfo SET value='1'; INSERT INTO items VALUES (" + number + ", 'uuid', " +
            (flags ? std::to_string(*flags) : "NULL") + ", 4, 100 + " + number + ", " + number +
            "); UPDATE dbinfo SET value='0'");
        auto app = connection->prepare("INSERT INTO apps VALUES (?, ?, ?, NULL, NULL, 0, ?)");
        app.bind(1, row);
        app.bind(2, std::string_view(title));
        if (identifier)
            app.bind(3, std::string_view(*identifier));
        if (bookmark)
            app.bind(4, ByteView(*bookmark));
        EXPECT_EQ(app.step(), sqlite::Step::done);
    }

    SmallMac small;
    SettingsManager settings{small.mac};
    UnsupportedAppsManager unsupported;
    IconManager icons{small.mac};
    DatabaseManager database{small.mac, settings, icons, unsupported};
    std::optional<sqlite::Connection> connection;
    LogRecorder log;
};

} // namespace tavrik::test
