#include "cli/Words.h"

#include "cli/AppLookup.h"
#include "cli/Json.h"
#include "cli/Table.h"

#include <QJsonDocument>

#include <gmock/gmock.h>

using namespace tavrik;
using testing::HasSubstr;

TEST(AppLookup, FindsExactlyAndHintsAtTheNearest) {
    std::vector<ApplicationInfo> apps(2);
    apps[0].name = "Atlas";
    apps[0].bundleID = "org.example.atlas";
    apps[1].name = "Kite";
    apps[1].bundleID = "org.example.kite";
    EXPECT_EQ(findApp(apps, "org.example.kite")->name, "Kite");

    const std::pair<const char*, const char*> cases[] = {
        {"org.example.Kite", "Did you mean org.example.kite"},
        {"org.example.atlsa", "Did you mean org.example.atlas"},
        {"kite", "Did you mean org.example.kite"},
        {"com.nobody.knows.this", "\"tavrikctl apps\" lists what there is."},
    };
    for (const auto& [typed, hint] : cases)
        EXPECT_THAT(findApp(apps, typed).error().description, HasSubstr(hint)) << typed;
    EXPECT_THAT(findApp({}, "org.example.kite").error().description, HasSubstr("locked"));
}

TEST(Table, AlignsColumnsByWhatAPersonCountsAsCharacters) {
    Table table({"A", "B"});
    table.add({"e\u0301te\u0301", "x"});
    table.add({"four", ""});
    EXPECT_EQ(table.text(), "A     B\ne\u0301te\u0301   x\nfour");
}

TEST(StagedInWords, TellsEverythingByItsNameAndInJsonByItsField) {
    StagedChanges staged;
    staged.pendingChanges["org.example.atlas"] = {
        .iconPaths = {MacPath("/IconCache/org.example.atlas/icon_1.png"),
                      MacPath("/PendingChanges/Icons/org.example.atlas/icon_4.png")},
        .selectedIndex = 0};
    staged.pendingChanges["org.example.gone"] = {.iconPaths = {}, .selectedIndex = 2};
    staged.pendingChanges["org.example.kite"] = {};
    staged.markedForDeletion["org.example.atlas"] = {0, 2};
    staged.pendingThemeIconHides = {{"dusk", "org.example.kite.png"}};
    staged.pendingThemeIconDeletions["dawn"] = {"a.png", "b.png"};
    staged.pendingThemeDeletions = {"noon"};
    staged.pendingFont = "Fraktur";
    staged.pendingReset = true;

    EXPECT_THAT(inWords(staged, {{"org.example.atlas", "Atlas"}, {"org.example.kite", "Kite"}}),
                testing::ElementsAre(
                    "Atlas: 1 new icon; icon_0.png, icon_2.png to be deleted; icon_1.png (index 0) is chosen.",
                    "org.example.gone: an icon of a theme (index 2) is chosen.",
                    "Kite: its own icon is chosen.", "Theme dusk: org.example.kite.png is to be hidden.",
                    "Theme dawn: a.png is to be deleted.", "Theme dawn: b.png is to be deleted.",
                    "Theme noon is to be deleted.", "Names are to be written in Fraktur.",
                    "Names are to be plain text again."));
    EXPECT_EQ(QJsonDocument(toJson(staged, dateFromUnix(1'700'000'000))), QJsonDocument::fromJson(R"({
        "pendingChanges": {
            "org.example.atlas": {"iconPaths": ["/IconCache/org.example.atlas/icon_1.png",
                "/PendingChanges/Icons/org.example.atlas/icon_4.png"],
                "selectedIndex": 0},
            "org.example.gone": {"iconPaths": [], "selectedIndex": 2}, "org.example.kite": {"iconPaths": [], "selectedIndex": null}},
        "markedForDeletion": {"org.example.atlas": [0, 2]},
        "pendingThemeIconHides": [{"themeID": "dusk", "iconFileName": "org.example.kite.png"}],
        "pendingThemeIconDeletions": {"dawn": ["a.png", "b.png"]}, "pendingThemeDeletions": ["noon"],
        "pendingFont": "Fraktur", "pendingReset": true, "timestamp": "2023-11-14T22:13:20Z"})"));
    EXPECT_TRUE(toJson(StagedChanges(), std::nullopt)[QLatin1String("timestamp")].isNull());
}
