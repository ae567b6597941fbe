#include "backups/LaunchpadCleaning.h"

#include "backups/DatabaseRows.h"
#include "fonts/FontManager.h"
#include "wrappers/WrapperStage.h"

#include <sqlite3.h>

#include <functional>

namespace tavrik::test {

namespace {

/// Stands for a kill: nothing in the program catches it.
struct Killed {};

/// A furnished Mac whose Launchpad is styled and wrapped by the program itself.
struct LaunchpadCleaningTest : WrapperStage {
    LaunchpadCleaningTest() {
        // Of an application that is gone nobody knows the capitals.
        execute("UPDATE apps SET title = lower(title) WHERE title = 'Windlass'; "
                "UPDATE groups SET title = 'XS iTunes' WHERE title = 'Utilities'");
        unstyled = rowsIn(snapshot());
    }

    void execute(const char* sql) {
        ASSERT_TRUE(
            sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite)->execute(sql));
    }

    Bytes snapshot() const { return *sqlite::copyOf(volume.launchpadDatabase()); }

    Bytes clean(Bytes database) {
        return LaunchpadCleaning(mac, program->settings, fonts).clean(std::move(database));
    }

    void style(const std::string& font) {
        FontManager manager(mac, program->settings, program->database, program->dock);
        font.empty() ? manager.resetAllFonts() : manager.applyFont(font);
    }

    void wrap() {
        for (const ApplicationInfo& app : {atlas, tips})
            EXPECT_TRUE(wrappers().createWrapper(app, redIcon()));
    }

    /// Kills the program before the change of that number; false when the work was over before.
    bool killedBefore(std::size_t change, const std::function<void()>& work) {
        const auto count = [&]() -> std::nullopt_t {
            if (--change == 0)
                throw Killed();
            return std::nullopt;
        };
        files.setRule([&](const FileOperation& operation) -> std::optional<int> {
            const std::string& name = operation.name;
            return name == "replace" || name == "remove" || name == "createFolder" ? count() : std::nullopt;
        });
        session.setInterceptor([&](const auto&, const auto&, const auto&) { return count(); });
        bool wasKilled = false;
        try {
            work();
        } catch (const Killed&) {
            wasKilled = true;
        }
        files.failNothing();
        session.setInterceptor({});
        start();
        return wasKilled;
    }

    std::vector<std::string> leftovers() const {
        std::vector<std::string> names = *own.files.list(temporaryFile.parent());
        std::erase_if(names, [](const std::string& name) { return !name.starts_with("launchpad_temp"); });
        return names;
    }

    FontReplacer fonts;
    std::vector<std::string> unstyled;
    const MacPath temporaryFile = LaunchpadCleaning(mac, program->settings, fonts).temporaryFile();
};

} // namespace

TEST_F(LaunchpadCleaningTest, GivesBackTheUnstyledRowsOneByOne) {
    EXPECT_EQ(clean(snapshot()), snapshot());
    EXPECT_TRUE(log.has("  ℹ️ No styled names found in Launchpad database"));
    wrap();
    for (const std::string font : {"", "Mathematical Bold", "Small Caps", "Negative Squared", "Circled"}) {
        SCOPED_TRACE(font);
        if (!font.empty())
            style(font);
        const Bytes before = snapshot();
        const Bytes cleaned = clean(before);
        EXPECT_THAT(rowsIn(cleaned), testing::ContainerEq(unstyled));
        EXPECT_EQ(cleaned[18], before[18]) << "the journal mode";
        EXPECT_EQ(clean(cleaned), cleaned);
        EXPECT_TRUE(log.has("1 hidden flag tavrik apps from backup"));
        EXPECT_THAT(leftovers(), testing::IsEmpty());
    }
    EXPECT_TRUE(log.has("  🧹 Cleaning hidden flag tavrik app: Tips"));
}

TEST_F(LaunchpadCleaningTest, SeesThroughEveryHalfDoneCreationAndRemoval) {
    for (const ApplicationInfo& app : {atlas, tips})
        for (const bool isRemoval : {false, true}) {
            std::size_t change = 1;
            for (bool wasKilled = true; wasKilled && !HasFailure(); ++change) {
                SCOPED_TRACE(app.name + " killed before change " + std::to_string(change));
                if (isRemoval) {
                    EXPECT_TRUE(wrappers().createWrapper(app, redIcon()));
                    wasKilled = killedBefore(change, [&] { wrappers().removeWrapper(app, RestartDock::yes); });
                } else {
                    wasKilled =
                        killedBefore(change, [&] { ignoreFailure(wrappers().createWrapper(app, redIcon())); });
                }
                // Once the removal has forgotten a wrapper, its row is the Dock's to drop.
                if (isRemoval && !wrappers().isUnfinished(app.bundleID) && !wrappers().hasWrapper(app.bundleID))
                    clock.sleep(std::chrono::seconds(10));
                EXPECT_THAT(rowsIn(clean(snapshot())), testing::ContainerEq(unstyled));
                wrappers().removeWrapper(app, RestartDock::yes);
                clock.sleep(std::chrono::seconds(10));
            }
            EXPECT_GT(change, 15u) << "too few changes were seen to mean anything";
        }
}

} // namespace tavrik::test
