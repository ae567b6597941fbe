#include "wrappers/PlacementExchange.h"

#include "system/LaunchpadSample.h"

namespace tavrik::test {

namespace {

const std::string kID = "org.example.atlas";
constexpr RowID kOriginal{1};
constexpr RowID kWrapper{2};

/// The original on page 101, its wrapper on page 102, a stranger on page 103.
struct PlacementExchangeTest : LaunchpadSample {
    PlacementExchangeTest() { fill(); }

    void fill() {
        run("DELETE FROM apps; DELETE FROM items");
        addApp(1, "Atlas", kID, 0, MacPath("/Applications/Atlas.app"));
        addApp(2, "Atlas", kID, 0, MacPath("/Users/practice/Applications/Tavrik/Atlas.app"));
        addApp(3, "Beacon", "org.example.beacon", 0, MacPath("/Applications/Beacon.app"));
    }

    std::int64_t page(RowID row) { return static_cast<std::int64_t>(database.placement(row)->parentID); }

    PlacementExchange exchange{settings, database};
};

} // namespace

TEST_F(PlacementExchangeTest, ExchangesOnceHoweverOftenItIsAsked) {
    for (int repeat = 0; repeat < 3; ++repeat) {
        ASSERT_TRUE(exchange.swapIn(kID, kOriginal, kWrapper));
        EXPECT_EQ(page(kWrapper), 101);
    }
    exchange.finish(kID);
    for (int repeat = 0; repeat < 3; ++repeat) {
        ASSERT_TRUE(exchange.swapBack(kID, kOriginal, kWrapper));
        EXPECT_EQ(page(kOriginal), 101);
    }
    EXPECT_TRUE(exchange.isUnfinished(kID));
}

TEST_F(PlacementExchangeTest, TellsFromTheRowsWhatAnUnfinishedExchangeLeft) {
    // What happened meanwhile, whether the program may go on and swap again, and the original's page then.
    using Case = std::tuple<const char*, bool, bool, int>;
    for (const auto& [meanwhile, mayGoOn, canSwapAgain, originalsPage] :
         {Case{"", true, true, 101}, Case{"UPDATE items SET ordering = ordering + 7", true, true, 101},
          Case{"DELETE FROM apps WHERE item_id = 2", true, false, 102},
          Case{"UPDATE apps SET bundleid = 'org.example.other' WHERE item_id = 2", true, false, 102},
          Case{"UPDATE items SET parent_id = 103 WHERE rowid = 2", true, false, 102},
          Case{"ALTER TABLE apps RENAME TO programs; DROP TABLE items", false, false, 0}}) {
        SCOPED_TRACE(meanwhile);
        fill();
        exchange.finish(kID);
        ASSERT_TRUE(exchange.swapIn(kID, kOriginal, kWrapper));
        run(meanwhile);
        EXPECT_EQ(exchange.swapIn(kID, kOriginal, kWrapper), canSwapAgain);
        EXPECT_EQ(exchange.undoUnfinished(kID), mayGoOn);
        EXPECT_TRUE(exchange.isUnfinished(kID));
        const auto place = database.placement(kOriginal);
        EXPECT_EQ(place ? place->parentID : RowID{0}, RowID{originalsPage});
    }
}

TEST_F(PlacementExchangeTest, TouchesNothingThatItCannotRecordOrThatIsNotTheApplications) {
    EXPECT_FALSE(exchange.swapIn(kID, kOriginal, RowID{3}));
    small.files.failOn("replace", {}, ENOSPC);
    EXPECT_FALSE(exchange.swapIn(kID, kOriginal, kWrapper));
    small.files.failNothing();
    EXPECT_FALSE(exchange.isUnfinished(kID));
    EXPECT_TRUE(exchange.swapBackIfThere(kID, kOriginal, RowID{3})) << "gone is as good as back";
    for (std::int64_t row = 1; row <= 3; ++row)
        EXPECT_EQ(page(RowID{row}), 100 + row);
}

} // namespace tavrik::test
