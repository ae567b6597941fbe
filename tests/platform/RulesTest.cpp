#include "platform/Date.h"
#include "platform/PathComponent.h"
#include "platform/PathRules.h"
#include "platform/Random.h"

#include <gtest/gtest.h>

#include <limits>
#include <set>

namespace tavrik::test {

namespace {

struct FixedRandom : Random {
    std::uint8_t value = 0;

    Bytes bytes(std::size_t count) override { return Bytes(count, value); }
};

} // namespace

TEST(SystemRandom, GivesAsManyFreshBytesAsAskedFor) {
    // Sixteen bytes that stay zero, or come twice, are no accident.
    std::set<Bytes> seen{Bytes(16)};
    const Bytes many = SystemRandom().bytes(1600);
    ASSERT_EQ(many.size(), 1600u);
    for (auto at = many.begin(); at != many.end(); at += 16)
        EXPECT_TRUE(seen.insert(Bytes(at, at + 16)).second);
}

TEST(UUID, IsUpperCaseAndMarkedAsRandom) {
    FixedRandom random;
    EXPECT_EQ(makeUUID(random), "00000000-0000-4000-8000-000000000000");
    random.value = 0xFF;
    EXPECT_EQ(makeUUID(random), "FFFFFFFF-FFFF-4FFF-BFFF-FFFFFFFFFFFF");
}

TEST(Date, IsoTextRoundsDownAndStaysInItsYears) {
    const std::pair<double, const char*> cases[] = {
        {0.999, "2001-01-01T00:00:00Z"},
        {-0.001, "2000-12-31T23:59:59Z"},
        {794'061'296.5, "2026-03-01T12:34:56Z"},
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

TEST(PathComponent, TellsSafeNamesFromUnsafeOnes) {
    const std::string safe[] = {"com.example.atlas",
                                "Caf\u00E9 \u65E5\u672C \U0001F600",
                                "...",
                                ".hidden",
                                "a-b",
                                "a:b\\c",
                                "\u00A0",
                                "\U0010FFFF",
                                std::string(255, 'x')};
    for (const std::string& name : safe)
        EXPECT_TRUE(isSafePathComponent(name)) << testing::PrintToString(name);

    const std::string unsafe[] = {"", ".", "..", "../etc", "a/b", "/", "-rf", std::string("a\0b", 3), "a\nb",
                                  "\x7F", "\u0085", "a\uFFFF", "\uFFFE", std::string(256, 'x'),
                                  // No UTF-8: cut short, "/" in two and in three bytes, half a surrogate pair,
                                  // beyond the last code point.
                                  "\xC3", "\x80", "\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80",
                                  "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80"};
    for (const std::string& name : unsafe)
        EXPECT_FALSE(isSafePathComponent(name)) << testing::PrintToString(name);
}

} // namespace tavrik::test
