#include "system/PlacementSwap.h"

#include "LaunchpadSample.h"

#include <gmock/gmock.h>

namespace tavrik {
namespace {

class PlacementSwapTest : public test::LaunchpadSample {
protected:
    PlacementSwapTest() {
        addRow(1, "Original", "com.example.a", std::nullopt, Bytes{});
        addRow(2, "Wrapper", "com.example.a", 128, Bytes{});
    }

    void expectUnchanged() {
        EXPECT_EQ(database.placement(RowID{1}), first);
        EXPECT_EQ(database.placement(RowID{2}), second);
        auto key = connection->prepare("SELECT value FROM dbinfo");
        EXPECT_TRUE(key.step() == sqlite::Step::row && key.text(0) == "0") << "the triggers are on";
    }

    const ItemPlacement first{std::nullopt, RowID{101}, 1};
    const ItemPlacement second{128, RowID{102}, 2};
};

TEST_F(PlacementSwapTest, ExchangesTwoRowsWithTheTriggersSilent) {
    addRow(3, "Neighbour", "com.example.b", 0, Bytes{});
    EXPECT_TRUE(database.swapItemPlacement(RowID{1}, RowID{2}));
    EXPECT_EQ(database.placement(RowID{1}), second);
    EXPECT_EQ(database.placement(RowID{2}), first);
    EXPECT_EQ(database.placement(RowID{3}), (ItemPlacement{0, RowID{103}, 3}));
    EXPECT_TRUE(database.swapItemPlacement(RowID{2}, RowID{1}));
    expectUnchanged();
    EXPECT_THAT(log.lines(), testing::IsEmpty());
}

TEST_F(PlacementSwapTest, RollsBackAndSaysWhy) {
    // Raised by triggers of our own, which see each statement of the swap come by.
    const auto failing = [](const std::string& when) {
        return "CREATE TRIGGER sabotage BEFORE UPDATE ON " + when + " BEGIN SELECT RAISE(ABORT, 'no'); END";
    };

    const std::string rolledBack = "Database swap failed, rolled back: Error Domain=DatabaseManager ";
    using Case = std::tuple<std::string, RowID, const char*>;
    for (const auto& [sabotage, other, error] :
         {Case{failing("dbinfo WHEN new.value = '1'"), RowID{2}, "Code=1 \"Failed to disable triggers\""},
          Case{"", RowID{9}, "Code=2 \"Failed to read app data\""},
          Case{failing("items WHEN old.rowid = 1"), RowID{2}, "Code=3 \"Failed to update app1\""},
          Case{failing("items WHEN old.rowid = 2"), RowID{2}, "Code=4 \"Failed to update app2\""},
          Case{failing("dbinfo WHEN new.value = '0'"), RowID{2}, "Code=5 \"Failed to re-enable triggers\""},
          Case{"BEGIN IMMEDIATE", RowID{2}, "Code=1 \"Failed to disable triggers\""}}) {
        run(sabotage);
        log.clear();
        EXPECT_FALSE(database.swapItemPlacement(RowID{1}, other));
        EXPECT_THAT(log.lines(), testing::ElementsAre(rolledBack + error));
        run(connection->inTransaction() ? "COMMIT" : "DROP TRIGGER IF EXISTS sabotage");
        expectUnchanged();
    }
    EXPECT_FALSE(database.swapItemPlacement(RowID{1}, RowID{1})) << "a row with itself";
    expectUnchanged();
}

TEST_F(PlacementSwapTest, RollsBackWhenTheCommitIsRefused) {
    // Checked only at COMMIT: a deferred foreign key that no row can satisfy.
    run("CREATE TABLE broken (id INTEGER REFERENCES apps(item_id) DEFERRABLE INITIALLY DEFERRED);"
        "CREATE TRIGGER sabotage AFTER UPDATE ON items BEGIN INSERT INTO broken VALUES (999); END;"
        "PRAGMA foreign_keys = ON");
    const auto error = swapPlacements(*connection, RowID{1}, RowID{2});
    EXPECT_EQ(error, "Error Domain=SQLite Code=19 \"FOREIGN KEY constraint failed\"");
    EXPECT_FALSE(connection->inTransaction());
    expectUnchanged();
}

} // namespace
} // namespace tavrik
