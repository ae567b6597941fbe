#include "fonts/FolderNames.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tavrik::test {

namespace {

const TitleStyle kBold = FontState{"Mathematical Bold", true, {}};
const TitleStyle kCaps = FontState{"Small Caps", false, {}};
const auto kNone = std::nullopt;

std::optional<FolderBackup> names(const char* original, const char* lastGood, const char* font = nullptr) {
    FolderBackup backup;
    if (original)
        backup.original = original;
    if (lastGood)
        backup.lastGood = lastGood;
    if (font)
        backup.lastGoodFont = font;
    return backup;
}

struct Case {
    const char* plain;
    std::optional<FolderBackup> backup;
    TitleStyle current;
    TitleStyle wanted;
    const char* base;
    std::optional<FolderBackup> save;
    const char* line;
};

void check(const Case& expected, const FolderName& found) {
    SCOPED_TRACE(expected.line);
    EXPECT_EQ(found.base, expected.base);
    EXPECT_EQ(found.save, expected.save);
    const std::vector<std::string> lines(*expected.line ? 1 : 0, expected.line);
    EXPECT_EQ(found.lines, lines);
}

} // namespace

TEST(FolderNames, KnowTheCapitalsBeforeAStyle) {
    const char* const bold = "Mathematical Bold";
    const Case cases[] = {
        {"IPHONE TOOLS", kNone, kCaps, kBold, "Iphone Tools", names("Iphone Tools", "Iphone Tools", bold),
         "  Creating backup from single-case font, attempting fix: 'IPHONE TOOLS' -> 'Iphone Tools'"},
        {"IPHONE", kNone, kBold, kCaps, "IPHONE", names("IPHONE", "IPHONE"),
         "  Creating backup from multi-case font: 'IPHONE'"},
        {"iTunes", kNone, kNone, kBold, "iTunes", names("iTunes", "iTunes", bold),
         "  Creating initial backup for folder: 'iTunes'"},
        {"Games", names("Music", "Music", "Fraktur"), kCaps, kCaps, "Games", names("Games", "Games"),
         "  Folder renamed: 'Music' -> 'Games'"},
        {"MUSIC", names("Music", "Music", bold), kBold, kCaps, "MUSIC", names(nullptr, "MUSIC"),
         "  Updating lastGood from 'Music' to 'MUSIC' (from Mathematical Bold)"},
        {"MUSIC", names("music", "Music", "Fraktur"), kBold, kCaps, "Music", kNone,
         "  Ignoring corrupted capitalization 'MUSIC', using backup 'Music'"},
        {"music", names("Music", "Music", bold), kCaps, kBold, "Music", kNone,
         "  Ignoring corrupted capitalization 'music', using backup 'Music'"},
        {"Music", names("MUSIC", "Music", bold), kBold, kBold, "Music", kNone, ""},
        // Decomposed and composed are one name.
        {"E\xCC\x81T\xC3\x89", names("\xC3\x89t\xC3\xA9", "\xC3\x89t\xC3\xA9"), kNone, kCaps,
         "\xC3\x89t\xC3\xA9", kNone,
         "  Ignoring corrupted capitalization 'E\xCC\x81T\xC3\x89', using backup '\xC3\x89t\xC3\xA9'"},
        // Half a backup is as good as its other half.
        {"music", names(nullptr, "Music"), kCaps, kBold, "Music", kNone,
         "  Ignoring corrupted capitalization 'music', using backup 'Music'"},
    };
    for (const Case& one : cases)
        check(one, nameForStyle(one.plain, one.backup, one.current, *one.wanted));
}

TEST(FolderNames, KnowTheCapitalsAtAReset) {
    const Case cases[] = {
        {"music", kNone, kCaps, kNone, "music", names("music", "music"),
         "  Creating backup during reset for: 'music'"},
        {"Games", names("Music", "Music"), kBold, kNone, "Games", names("Games", "Games"),
         "  Folder renamed during reset: 'Music' -> 'Games'"},
        {"MUSIC", names("Music", "Music", "Fraktur"), kBold, kNone, "MUSIC", names(nullptr, "MUSIC"),
         "  Saving final capitalization before reset: 'MUSIC'"},
        {"music", names("Music", "Music"), kCaps, kNone, "Music", kNone, ""},
    };
    for (const Case& one : cases)
        check(one, nameForReset(one.plain, one.backup, one.current));
}

} // namespace tavrik::test
