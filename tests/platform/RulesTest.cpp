#include "platform/Date.h"
#include "platform/PathRules.h"
#include "platform/Random.h"
#include "support/contracts/RandomContract.h"

#include <limits>

namespace tavrik::test {

namespace {

struct SystemAdapter {
    SystemRandom own;

    Random& random() { return own; }
};

struct FixedRandom : Random {
    std::uint8_t value = 0;

    Bytes bytes(std::size_t count) override { return Bytes(count, value); }
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(System, RandomContract, SystemAdapter);

TEST(UUID, IsUpperCaseAndMarkedAsRandom) {
    FixedRandom random;
    EXPECT_EQ(makeUUID(random), "00000000-0000-4000-8000-000000000000");
    random.value = 0xFF;
    EXPECT_EQ(makeUUID(random), "FFFFFFFF-FFFF-4FFF-BFFF-FFFFFFFFFFFF");
}

TEST(Date, IsoTextRoundsDownAndStaysInItsYears) {
    const std::pair<double, const char*> cases[] = {
        {0, "2001-01-01T00:00:00Z"},
        {0.999, "2001-01-01T00:00:00Z"},
        {-0.001, "2000-12-31T23:59:59Z"},
        {794'061'296.5, "2026-03-01T12:34:56Z"},
        {-978'307'200.5, "1969-12-31T23:59:59Z"},
        {720'619'199, "2023-11-02T11:59:59Z"},
        {1e300, "9999-12-31T23:59:59Z"},
        {-1e300, "0001-01-01T00:00:00Z"},
        {std::numeric_limits<double>::quiet_NaN(), "0001-01-01T00:00:00Z"},
    };
    for (const auto& [seconds, text] : cases)
        EXPECT_EQ(isoText(Date{seconds}), text) << seconds;
}

TEST(PathRules, TheLaunchpadDatabaseBelongsToTheTemporaryFolder) {
    const std::pair<const char*, const char*> cases[] = {
        {"/var/folders/ab/xyz/T/", "/var/folders/ab/xyz/0/com.apple.dock.launchpad/db/db"},
        {"/var/folders/ab/xyz", "/var/folders/ab/xyz/0/com.apple.dock.launchpad/db/db"},
        {"/private/var/folders/ab/xyz/T", "/private/var/folders/ab/0/com.apple.dock.launchpad/db/db"},
        {"/var/folders/ab/",
         "/var/folders/ab//0/com.apple.dock.launchpad/db/db"}, // five with the empty last one
        {"/var/folders/ab", "/private/var/folders/0/com.apple.dock.launchpad/db/db"},
        {"/tmp/", "/private/var/folders/0/com.apple.dock.launchpad/db/db"},
        {"", "/private/var/folders/0/com.apple.dock.launchpad/db/db"},
    };
    for (const auto& [temporary, database] : cases)
        EXPECT_EQ(launchpadDatabasePath(temporary).string(), database) << temporary;
}

TEST(PathRules, AWrapperIsBelowItsFolderWhereverThatIs) {
    EXPECT_TRUE(isWrapperPath(wrapperFolder(MacPath("/Users/practice")) / "Atlas.app"));
    EXPECT_TRUE(isWrapperPath(MacPath("/Volumes/Old/Applications/Tavrik/Atlas.app/Contents")));
    EXPECT_FALSE(isWrapperPath(MacPath("/Applications/Tavrik.app")));
    EXPECT_FALSE(isWrapperPath(MacPath("/Users/practice/Applications/Tavrik")));
}

} // namespace tavrik::test
