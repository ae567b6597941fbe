#include "themes/IconMatcher.h"

#include "fonts/FontReplacer.h"
#include "themes/MatchableName.h"
#include "themes/ThemeCoverage.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace tavrik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Names = std::vector<std::string>;

ApplicationInfo app(const std::string& name, const std::string& bundleID) {
    ApplicationInfo info;
    info.name = name;
    info.bundleID = bundleID;
    info.path = MacPath("/Applications/" + name + ".app");
    return info;
}

/// "Atlas.png = org.example.atlas (1)", the number the kind's.
Names inWords(const std::vector<IconMatch>& matches) {
    Names words;
    for (const IconMatch& match : matches)
        words.push_back(match.fileName + " = " + match.bundleID + " (" +
                        std::to_string(static_cast<int>(match.kind)) + ")");
    return words;
}

const FontReplacer fonts;

TEST(IconMatcher, FindsTheApplicationThatAFileIsNamedAfter) {
    const std::vector<ApplicationInfo> apps = {
        app("Ember Notes", "com.example.lumen.ember-notes"),
        app("TextEdit", "com.apple.TextEdit"),
        app("Éclair Recipes", "com.example.eclair"),
        app("Quill & Co", "com.example.quill-and-co"),
        app("App Store", "com.apple.AppStore"),
        app("Nimbus Drive", "com.example.nimbus.drive"),
        app("Adobe Photo 2024", "com.example.photo"),
        app("2048", "com.example.number-game"),
        app("Half-Life", "com.example.hl"),
        app("Half-Life 2", "com.example.hl2"),
        app("星図", "net.example.seizu"),
    };

    const struct {
        std::string file;
        std::string bundleID; ///< empty: none for sure
        MatchKind kind = MatchKind::foldedName;
    } cases[] = {
        {"com.apple.TextEdit.icns", "com.apple.TextEdit", MatchKind::identifier},
        {"com.apple.textedit.png", "com.apple.TextEdit", MatchKind::identifier},
        {"Ember Notes.png", "com.example.lumen.ember-notes", MatchKind::name},
        {"星図.png", "net.example.seizu", MatchKind::name},
        {"2048.svg", "com.example.number-game", MatchKind::name},
        {"ember_notes-v3 (beta).PNG", "com.example.lumen.ember-notes"},
        {"𝐄𝐦𝐛𝐞𝐫 𝐍𝐨𝐭𝐞𝐬.png", "com.example.lumen.ember-notes"},
        {"EmberNotesIcon@2x.png", "com.example.lumen.ember-notes"},
        {"e\u0301clair recipes.svg", "com.example.eclair"},
        {"quill-co.svg", ""},
        {"quill-and-co.svg", "com.example.quill-and-co"},
        {"org.gnome.Text-Edit.svg", "com.apple.TextEdit"},
        {"adobe-photo.svg", "com.example.photo"},
        {"half-life.svg", "com.example.hl"},
        {"half-life-2.svg", "com.example.hl2"},
        {"hl2.svg", "com.example.hl2"},
        {"store.svg", ""},       // "App" is no version here
        {"drive.svg", ""},       // one word of a name is not the name
        {"org.foo.app.svg", ""}, // says nothing
        {".png", ""},
        {"---.png", ""},
    };

    for (const auto& expected : cases) {
        const IconMatches matches = matchIcons({expected.file}, apps, fonts);
        if (expected.bundleID.empty()) {
            EXPECT_THAT(matches.sure, IsEmpty()) << expected.file;
            continue;
        }
        ASSERT_EQ(matches.sure.size(), 1U) << expected.file;
        EXPECT_EQ(matches.sure[0].bundleID, expected.bundleID) << expected.file;
        EXPECT_EQ(matches.sure[0].kind, expected.kind) << expected.file;
        EXPECT_THAT(matches.unmatched, IsEmpty());
    }
}

TEST(IconMatcher, GivesEachApplicationItsSurestFileWhateverTheOrder) {
    std::vector<ApplicationInfo> apps = {app("Atlas", "org.example.atlas"), app("Notes", "com.apple.Notes"),
                                         app("Notes", "com.example.notes"), app("Beacon", "com.example.beacon"),
                                         app("TextEdit", "com.apple.TextEdit")};
    Names files = {"beacon.svg", "Atlas.png",       "atlas.svg",           "org.gnome.Atlas.svg",
                   "BEACON.png", "text-editor.svg", "com.apple.Notes.png", "Notes 3.png",
                   "tdt.svg",    "zebra.svg"};
    for (int turn = 0; turn < 10; ++turn) {
        const IconMatches matches = matchIcons(files, apps, fonts);
        EXPECT_THAT(inWords(matches.sure),
                    ElementsAre("com.apple.Notes.png = com.apple.Notes (0)",
                                "BEACON.png = com.example.beacon (2)", "Notes 3.png = com.example.notes (2)",
                                "Atlas.png = org.example.atlas (1)"));
        EXPECT_THAT(inWords(matches.alternatives), ElementsAre("beacon.svg = com.example.beacon (2)"));
        EXPECT_THAT(inWords(matches.doubtful), ElementsAre("text-editor.svg = com.apple.TextEdit (3)"));
        EXPECT_THAT(matches.unmatched, ElementsAre("atlas.svg", "org.gnome.Atlas.svg", "tdt.svg", "zebra.svg"));
        std::ranges::rotate(files, files.begin() + 3);
        std::ranges::rotate(apps, apps.begin() + 2);
    }
    const IconMatches tie = matchIcons({"notes.svg"}, apps, fonts);
    EXPECT_THAT(tie.sure, IsEmpty());
    EXPECT_THAT(inWords(tie.doubtful),
                ElementsAre("notes.svg = com.apple.Notes (2)", "notes.svg = com.example.notes (2)"));
}

TEST(IconMatcher, WeighsStartsOfWordsAndRunsMost) {
    const auto like = [](const char* one, const char* other) {
        const double score = similarity(matchable(one, fonts), matchable(other, fonts));
        EXPECT_EQ(score, similarity(matchable(other, fonts), matchable(one, fonts))) << one << " " << other;
        return score;
    };
    EXPECT_EQ(like("Atlas", "atlas"), 1);
    EXPECT_EQ(like("dsk", "Disc"), 0);
    EXPECT_EQ(like("vc", "Visual Code"), 0) << "two letters are found anywhere";

    const struct {
        const char* name;
        const char* nearer;
        const char* farther;
    } cases[] = {
        {"Visual Studio Code", "vscode", "vidcod"}, {"Google Chrome", "chrome", "gochro"},
        {"Context", "context menu", "text"},        {"Disk Utility", "disk", "kut"},
        {"Calculator", "gnome-calculator", "cltr"},
    };

    for (const auto& [name, nearer, farther] : cases)
        EXPECT_GT(like(name, nearer), like(name, farther)) << name;
}

TEST(ThemeCoverage, SortsApplicationsByWhatTheThemeHasForThem) {
    std::vector<ApplicationInfo> apps = {app("B", "b"), app("A", "a"), app("C", "c"), app("I", "i"),
                                         app("U", "u")};
    apps[3].isIOSApp = apps[4].isUnsupportedApp = true;
    const auto icon = [](const std::string& id) { return ThemeIcon{id, MacPath("/T/" + id + ".png")}; };
    const ThemeCoverage coverage = coverageOf({icon("a"), icon("b"), icon("u"), icon("z")}, {"b.png"}, apps);
    const auto ids = [](const std::vector<ApplicationInfo>& list) {
        Names names;
        for (const ApplicationInfo& entry : list)
            names.push_back(entry.bundleID);
        return names;
    };
    EXPECT_THAT(ids(coverage.covered), ElementsAre("a"));
    EXPECT_THAT(ids(coverage.hidden), ElementsAre("b"));
    EXPECT_THAT(ids(coverage.lacking), ElementsAre("c"));
    EXPECT_THAT(ids(coverage.notRestylable), ElementsAre("u"));
    EXPECT_THAT(coverage.withoutApplication, ElementsAre(icon("z")));
}

} // namespace
} // namespace tavrik
