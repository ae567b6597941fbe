#include "backups/LaunchpadCleaning.h"
#include "fonts/FontReplacer.h"
#include "platform/SqliteCopy.h"
#include "system/LaunchpadSample.h"

#include <gmock/gmock.h>
#include <sqlite3.h>

namespace tavrik::test {
namespace {

using testing::IsEmpty;

const std::string kID = "org.example.atlas";
const std::string kExpected = "1@101/0 3@103/0";
const std::string kSwapped = "1@102/128 3@103/0";

/// The original on page 101, its wrapper on page 102, a stranger on page 103.
struct CleanedRowsTest : LaunchpadSample {
    CleanedRowsTest() {
        ignoreFailure(small.files.createFolder(cleaning.temporaryFile().parent()));
        fill();
    }

    void fill() {
        run("DELETE FROM apps; DELETE FROM items; DELETE FROM groups");
        addApp(1, "𝐀tlas", kID, 0, kOriginal);
        addApp(2, "Atlas", kID, 128, kWrapper);
        addApp(3, "Beacon", "org.example.beacon", 0, MacPath("/Applications/Tavrik.app"));
    }

    Bytes snapshot() { return *sqlite::copyOf(small.mac.volume.hostPath(database.launchpadDatabasePath())); }

    Bytes clean(Bytes bytes) { return cleaning.clean(std::move(bytes)); }

    /// The first column of the first row.
    static std::string answer(const Bytes& bytes, const char* query) {
        auto copy = sqlite::openCopy(bytes);
        auto select = copy->prepare(query);
        return select.step() == sqlite::Step::row ? select.text(0).value_or("") : copy->lastError();
    }

    /// "row@page/flags" of every application.
    static std::string appsIn(const Bytes& bytes) {
        return answer(bytes, "SELECT group_concat(i.rowid || '@' || parent_id || '/' || flags, ' ') "
                             "FROM items i JOIN apps ON item_id = i.rowid JOIN image_cache c USING (item_id)");
    }

    std::vector<std::string> leftovers() { return *small.files.list(cleaning.temporaryFile().parent()); }

    const MacPath kOriginal{"/Applications/Atlas.app"};
    const MacPath kWrapper{"/Users/practice/Applications/Tavrik/Atlas.app"};
    FontReplacer fonts;
    LaunchpadCleaning cleaning{small.mac, settings, fonts};
};

TEST_F(CleanedRowsTest, TrustsARecordOnlyWhereItsRowsAreStillWhatItSays) {
    struct Case {
        const char* records; ///< m: a mapping, h: a hidden-flag record, s: rows recorded at home, x: exchanged
        std::int64_t original, wrapper;
        const char* meanwhile;
        std::string left = kExpected;
    };

    const char* lost = "wrapper";
    for (const auto& [records, original, wrapper, meanwhile, left] : {
             Case{"", 1, 2, ""},
             Case{"m", 1, 2, "", kSwapped},
             Case{"x", 1, 2, "", kSwapped},
             Case{"mh", 1, 2, "", kSwapped},
             Case{"h", 1, 2, ""},
             Case{"s", 1, 2, ""},
             Case{"ms", 1, 2, ""},
             Case{"mx", 1, 2, "UPDATE items SET ordering = ordering + 7", kSwapped},
             Case{"mx", 1, 2, "UPDATE items SET parent_id = 109 WHERE rowid = 2"},
             Case{"m", 1, 2, "UPDATE apps SET bundleid = ' org.example.atlas\n' WHERE item_id = 2", kSwapped},
             Case{"m", 1, 2, "original", kSwapped},
             Case{"m", 1, 2, lost, kSwapped},
             Case{"h", 1, 2, lost},
             Case{"xs", 1, 2, lost},
             Case{"", 1, 2, lost},
             Case{"mh", 1, 2, "both", kSwapped},
             Case{"mh", 1, 2, "UPDATE apps SET bundleid = 'org.example.other' WHERE item_id = 2"},
             Case{"mh", 1, 3, ""},
             Case{"mh", 1, 3, "UPDATE apps SET bundleid = 'org.example.atlas' WHERE item_id = 3"},
             Case{"mh", 3, 2, ""},
             Case{"mh", 2, 2, ""},
             Case{"mh", 2, 1, ""},
             Case{"mh", 7, 2, ""},
             Case{"mh", 7, 2, lost},
         }) {
        SCOPED_TRACE(std::string(records) + " of " + std::to_string(original) + " and " +
                     std::to_string(wrapper) + ", " + meanwhile);
        fill();
        const std::string what = meanwhile;
        if (what == "original" || what == "both")
            ignoreFailure(small.files.remove(kOriginal));
        if (what == lost || what == "both")
            ignoreFailure(small.files.remove(kWrapper));
        if (what.find(' ') != what.npos)
            run(what);
        ASSERT_TRUE(settings.clearAfterRestore({}));
        const RowID rows[] = {RowID{original}, RowID{wrapper}}, pages[] = {RowID{101}, RowID{102}};
        for (const char record : std::string(records)) {
            const bool isExchanged = record == 'x';
            if (record == 'm')
                settings.saveMapping(kID, rows[0], rows[1]);
            else if (record == 'h')
                settings.saveHiddenFlagApp(kID, 128, rows[0], rows[1], true);
            else
                ASSERT_TRUE(settings.saveSwapRecord(
                    kID, {rows[0], {0, pages[isExchanged], 1}, rows[1], {0, pages[!isExchanged], 2}}));
        }
        EXPECT_EQ(appsIn(clean(snapshot())), left);
    }
}

TEST_F(CleanedRowsTest, HandsBackWhatItCannotClean) {
    const Bytes whole = snapshot();
    run("ALTER TABLE apps RENAME TO old; CREATE TABLE apps (item_id INTEGER PRIMARY KEY, title "
        "CHECK(title != 'Atlas' OR item_id > 1), bundleid, bookmark); "
        "INSERT INTO apps SELECT item_id, title, bundleid, bookmark FROM old");
    const Bytes refusing = snapshot();
    Bytes damaged = whole;
    const auto page = std::stoul(answer(whole, "SELECT rootpage FROM sqlite_master WHERE name = 'apps'"));
    damaged[(page - 1) * 4096] = 0xFF;
    for (const Bytes& bytes : {Bytes(), Bytes(5000, 'x'), Bytes(whole.begin(), whole.begin() + 50),
                               Bytes(whole.begin(), whole.begin() + 8192), refusing, damaged}) {
        EXPECT_EQ(clean(bytes), bytes);
        EXPECT_THAT(leftovers(), IsEmpty());
    }
    EXPECT_TRUE(log.has("⚠️ Could not open Launchpad database for cleaning (error: 26)"));
    EXPECT_GE(log.count("  🔵 DEBUG: Exception caught, returning original data"), 3u);
}

TEST_F(CleanedRowsTest, LeavesTheInputOrTheWholeWorkWhateverFails) {
    const Bytes input = snapshot();
    settings.saveMapping(kID, RowID{1}, RowID{2});
    settings.preloadSettings();
    small.files.forget();
    const Bytes cleaned = clean(input);
    ASSERT_EQ(appsIn(cleaned), kSwapped);
    const auto operations = small.files.journal();
    for (std::size_t number = 1; number <= operations.size(); ++number)
        for (const Times times : {Times::once, Times::forGood}) {
            SCOPED_TRACE(operations[number - 1] + " fails");
            small.files.failAt(number, EIO, times);
            const bool isOver = operations[number - 1].starts_with("remove") && number > 5;
            EXPECT_EQ(clean(input), isOver ? cleaned : input);
            small.files.failNothing();
            EXPECT_TRUE(isOver || times == Times::forGood || leftovers().empty());
            cleaning.removeLeftovers();
            EXPECT_THAT(leftovers(), IsEmpty());
        }

    std::size_t refusals = 0;
    for (sqlite3_int64 room = 0; room < 400'000; room += 2'000) {
        sqlite3_hard_heap_limit64(sqlite3_memory_used() + room);
        const Bytes result = clean(input);
        sqlite3_hard_heap_limit64(0);
        refusals += result == input;
        EXPECT_TRUE(result == input || result == cleaned) << room << " bytes for SQLite";
        EXPECT_THAT(leftovers(), IsEmpty());
    }
    EXPECT_TRUE(refusals > 0 && clean(input) == cleaned);
}

TEST_F(CleanedRowsTest, IsNotMisledByWhatStandsAtItsPath) {
    const Bytes input = snapshot();
    const Bytes cleaned = clean(input);
    const std::string path = cleaning.temporaryFile().string();
    const MacPath victim("/Users/practice/victim");
    ASSERT_TRUE(small.files.create(victim, bytesOf("precious")));
    run("UPDATE apps SET title = 'of another time'");
    const Bytes laterLog = *small.mac.files.read(MacPath(database.launchpadDatabasePath().string() + "-wal"));
    for (const char* suffix : {"", "-journal", "-wal", "-shm"}) {
        ASSERT_TRUE(small.files.createLink(MacPath(path + suffix), victim.string()));
        EXPECT_EQ(clean(input), cleaned);
        EXPECT_EQ(textOf(*small.mac.files.read(victim)), "precious");
    }
    ASSERT_TRUE(small.files.create(MacPath(path + "-wal"), laterLog));
    EXPECT_EQ(clean(input), cleaned);
    EXPECT_THAT(leftovers(), IsEmpty());
}

TEST_F(CleanedRowsTest, StopsAtItsLimitsAndHandlesARowOnce) {
    run("WITH RECURSIVE n(x) AS (SELECT 10 UNION ALL SELECT x + 1 FROM n WHERE x < 50007) "
        "INSERT INTO apps (item_id, title) SELECT x, '𝐀' FROM n");
    run("WITH RECURSIVE n(x) AS (SELECT 100 UNION ALL SELECT x + 1 FROM n WHERE x < 10100) "
        "INSERT INTO groups (item_id, title) SELECT x, '𝐀' FROM n");
    const Bytes cleaned = clean(snapshot());
    EXPECT_EQ(answer(cleaned, "SELECT group_concat(item_id) FROM apps WHERE title = '𝐀'"), "50007");
    EXPECT_EQ(answer(cleaned, "SELECT group_concat(item_id) FROM groups WHERE title = '𝐀'"), "10100");
    EXPECT_TRUE(log.has("  ⚠️ WARNING: Exceeded maximum app count (50000), breaking loop"));
    EXPECT_TRUE(log.has("  ⚠️ WARNING: Exceeded maximum folder count (10000), breaking loop"));
    EXPECT_TRUE(log.has("59998 styled names in Launchpad database"));

    run("DROP TABLE apps; DROP TABLE groups; "
        "CREATE TABLE apps (rowid, item_id, title, bundleid, bookmark); CREATE TABLE groups (item_id, title); "
        "INSERT INTO apps VALUES (7, 7, '𝐀', 'a', NULL), (7, 7, '𝐁', 'a', NULL); "
        "INSERT INTO groups VALUES (9, '𝐀'), (9, '𝐁')");
    EXPECT_EQ(answer(clean(snapshot()), "SELECT (SELECT group_concat(title) FROM apps) || group_concat(title) "
                                        "FROM groups"),
              "A,AA,A");
    EXPECT_TRUE(log.has("  🔵 DEBUG: Skipping duplicate rowId: 7"));
    EXPECT_TRUE(log.has("  🔵 DEBUG: Skipping duplicate folder itemId: 9"));
}

} // namespace
} // namespace tavrik::test
