#include "fonts/FolderNames.h"

#include "fonts/CapitalisationFix.h"

#include <gtest/gtest.h>

namespace tavrik::test {

namespace {

const char* const bold = "Mathematical Bold";
const TitleStyle kBold = FontState{bold, true, {}};
const TitleStyle kCaps = FontState{"Small Caps", false, {}};
const auto kNone = std::nullopt;

using Text = std::optional<std::string>;

FolderBackup names(const Text& original, const Text& lastGood, const Text& font = kNone) {
    return {original, {}, lastGood, {}, font};
}

} // namespace

TEST(FolderNames, KnowTheCapitalsBeforeAStyleAndAtAReset) {
    const struct {
        std::string plain;
        std::optional<FolderBackup> backup;
        TitleStyle current, wanted; ///< none wanted: the reset
        std::string base;
        std::optional<FolderBackup> save;
        std::string line;
    } cases[] = {
        {"IPHONE TOOLS", kNone, kCaps, kBold, "Iphone Tools", names("Iphone Tools", "Iphone Tools", bold),
         "  Creating backup from single-case font, attempting fix: 'IPHONE TOOLS' -> 'Iphone Tools'"},
        {"IPHONE", kNone, kBold, kCaps, "IPHONE", names("IPHONE", "IPHONE"),
         "  Creating backup from multi-case font: 'IPHONE'"},
        {"iTunes", kNone, kNone, kBold, "iTunes", names("iTunes", "iTunes", bold),
         "  Creating initial backup for folder: 'iTunes'"},
        {"Games", names("Music", "Music", "Fraktur"), kCaps, kCaps, "Games", names("Games", "Games"),
         "  Folder renamed: 'Music' -> 'Games'"},
        {"MUSIC", names("Music", "Music", bold), kBold, kCaps, "MUSIC", names(kNone, "MUSIC"),
         "  Updating lastGood from 'Music' to 'MUSIC' (from Mathematical Bold)"},
        {"MUSIC", names("music", "Music", "Fraktur"), kBold, kCaps, "Music", kNone,
         "  Ignoring corrupted capitalization 'MUSIC', using backup 'Music'"},
        {"Music", names("MUSIC", "Music", bold), kBold, kBold, "Music", kNone, ""},
        // Decomposed and composed are one name.
        {"E\u0301TÉ", names("Été", "Été"), kNone, kCaps, "Été", kNone,
         "  Ignoring corrupted capitalization 'E\u0301TÉ', using backup 'Été'"},
        // Half a backup is as good as its other half.
        {"music", names(kNone, "Music"), kCaps, kBold, "Music", kNone,
         "  Ignoring corrupted capitalization 'music', using backup 'Music'"},
        {"music", kNone, kCaps, kNone, "music", names("music", "music"),
         "  Creating backup during reset for: 'music'"},
        {"Games", names("Music", "Music"), kBold, kNone, "Games", names("Games", "Games"),
         "  Folder renamed during reset: 'Music' -> 'Games'"},
        {"MUSIC", names("Music", "Music", "Fraktur"), kBold, kNone, "MUSIC", names(kNone, "MUSIC"),
         "  Saving final capitalization before reset: 'MUSIC'"},
        {"music", names("Music", "Music"), kCaps, kNone, "Music", kNone, ""},
    };

    for (const auto& [plain, backup, current, wanted, base, save, line] : cases) {
        SCOPED_TRACE(line);
        const FolderName found =
            wanted ? nameForStyle(plain, backup, current, *wanted) : nameForReset(plain, backup, current);
        EXPECT_EQ(found.base, base);
        EXPECT_EQ(found.save, save);
        EXPECT_EQ(found.lines, std::vector<std::string>(line.empty() ? 0 : 1, line));
    }
}

TEST(CapitalisationFix, ChangesNothingButTheCaseOfLetters) {
    const std::pair<const char*, const char*> cases[] = {
        {"IPHONE", "iPhone"},
        {"vpn's", "VPN's"},
        {"VPNS", "VPNs"},
        {" TV AND IOS apps a 3D  vpn iTUNES ÉTÉS été e\u0301té ",
         " TV AND IOS Apps A 3D  Vpn Itunes Étés Été E\u0301té "},
        {"", ""},
    };
    for (const auto& [plain, fixed] : cases)
        EXPECT_EQ(withFixedCapitals(plain), fixed);
}

} // namespace tavrik::test
