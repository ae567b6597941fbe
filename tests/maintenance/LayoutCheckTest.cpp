#include "maintenance/LayoutCheck.h"

#include "MaintenanceStage.h"

namespace tavrik::test {

namespace {

class LayoutCheck : public MaintenanceStage {
protected:
    /// So many applications on one page, and none else that has an identifier.
    void fill(int count) {
        const std::string numbers =
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
            std::to_string(count) + ") ";
        execute("UPDATE apps SET bundleid = NULL;" + numbers +
                "INSERT INTO items (rowid, uuid, flags, type, parent_id, ordering) SELECT 9000 + i, i, 0, 4, " +
                parentOf(kAtlas) + ", i FROM n;" + numbers +
                "INSERT INTO apps (item_id, title, bundleid) SELECT 9000 + i, i, 'org.many.' || i FROM n");
    }

    void move(int count) {
        execute("UPDATE items SET parent_id = " + parentOf("com.apple.Safari") +
                " WHERE rowid BETWEEN 9001 AND 9000 + " + std::to_string(count));
    }

    std::string parentOf(const std::string& bundleID) const {
        return std::to_string(std::ranges::find(firstRows, bundleID, &LaunchpadItem::bundleID)->parent);
    }
};

} // namespace

TEST_F(LayoutCheck, WarnsWhenMoreThanHalfAndMoreThanThirtyHaveMoved) {
    struct Case {
        int apps;
        int moved;
        int result;
    };

    for (const auto& [apps, moved, result] :
         {Case{20, 15, 15}, {60, 40, 40}, {100, 40, 0}, {60, 31, 31}, {58, 30, 30}, {62, 31, 0}, {60, 0, 0}}) {
        SCOPED_TRACE(testing::Message() << moved << " of " << apps);
        execute("DELETE FROM items WHERE rowid > 9000");
        fill(apps);
        ASSERT_TRUE(program->backups.createBackup());
        move(moved);
        std::set<std::uint32_t> rights;
        files.setRule([&](const FileOperation& operation) -> std::optional<int> {
            if (const auto copy = own.files.attributes(operation.path);
                copy && operation.path.name() == "backup_check.db" && operation.name == "remove")
                rights.insert(copy->permissions);
            return std::nullopt;
        });
        log.clear();
        alerts.asked.clear();
        browsed = 0;
        const bool warns = result == 40 || result == 31;
        alerts.answers = {moved == 31 ? 1U : 0U};
        maintenance().checkForLayoutIssues();
        EXPECT_TRUE(log.has("  Layout check: " + std::to_string(apps) + " apps checked, " +
                            std::to_string(moved) + " changed pages"));
        const std::string count = std::to_string(result);
        EXPECT_TRUE(log.has(warns ? count + " apps with changed positions"
                                  : "  ✅ Layout appears normal (" + count + " position changes)"));
        EXPECT_EQ(alerts.asked.size(), warns ? 1U : 0U);
        EXPECT_EQ(browsed, warns && moved == 40 ? 1 : 0);
        EXPECT_THAT(rights, testing::ElementsAre(0600U));
        EXPECT_TRUE(own.files.list(MacPath(own.volume.temporaryFolder()))->empty());
        if (warns) {
            const Alert& alert = alerts.asked.front();
            EXPECT_EQ(alert.title, "Possible Layout Issue Detected");
            EXPECT_EQ(alert.text, "Significant changes to your Launchpad layout have been detected. This might "
                                  "indicate a database issue.");
            EXPECT_THAT(alert.buttons, testing::ElementsAre("Browse Backups", "Ignore"));
            EXPECT_EQ(alert.style, AlertStyle::warning);
        }
    }
}

TEST_F(LayoutCheck, TakesARestyledApplicationForTheOneThatItStandsFor) {
    ASSERT_TRUE(program->backups.createBackup());
    const auto changed = [this] {
        log.clear();
        EXPECT_EQ(checkLayout(program->applyServices), 0);
        return linesLike({"  Layout check: "});
    };
    const auto untouched = changed();
    restyle({{kAtlas, 1}, {kFerrule, 2}});
    EXPECT_EQ(changed(), untouched);
}

TEST_F(LayoutCheck, SaysNothingToThePersonWhereThereIsNothingToCompareWith) {
    const auto check = [this] {
        log.clear();
        maintenance().checkForLayoutIssues();
        EXPECT_FALSE(log.mentions("Layout appears"));
    };
    check();
    EXPECT_EQ(log.lines().back(), "  No backups available for comparison");
    const auto backup = program->backups.createBackup();
    ASSERT_TRUE(backup && own.files.write(*backup, bytesOf("no backup")));
    check();
    EXPECT_EQ(log.lines().back(), "  Failed to extract backup database");
    EXPECT_TRUE(alerts.asked.empty());
}

} // namespace tavrik::test
