#include "cli/Json.h"
#include "cli/Words.h"

#include <QJsonDocument>

#include <gmock/gmock.h>

using namespace tavrik;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const MacPath kPending("/Users/practice/Library/Application Support/com.tavrik.Tavrik/PendingChanges/Icons");

StagedChanges everything() {
    StagedChanges staged;
    staged.pendingChanges["org.example.atlas"] = {
        .iconPaths = {MacPath("/IconCache/org.example.atlas/icon_1.png"),
                      kPending / "org.example.atlas/icon_4.png"},
        .selectedIndex = 0};
    staged.pendingChanges["org.example.gone"] = {.iconPaths = {}, .selectedIndex = 2};
    staged.pendingChanges["org.example.kite"] = {};
    staged.markedForDeletion["org.example.atlas"] = {0, 2};
    staged.pendingThemeIconHides = {{"dusk", "org.example.kite.png"}};
    staged.pendingThemeIconDeletions["dawn"] = {"a.png", "b.png"};
    staged.pendingThemeDeletions = {"noon"};
    staged.pendingFont = "Fraktur";
    staged.pendingReset = true;
    return staged;
}

} // namespace

TEST(StagedInWords, TellsEverythingByItsName) {
    const AppNames names{{"org.example.atlas", "Atlas"}, {"org.example.kite", "Kite"}};
    EXPECT_THAT(
        inWords(everything(), names),
        ElementsAre("Atlas: 1 new icon; icon_0.png, icon_2.png to be deleted; icon_1.png (index 0) is chosen.",
                    "org.example.gone: an icon of a theme (index 2) is chosen.",
                    "Kite: its own icon is chosen.", "Theme dusk: org.example.kite.png is to be hidden.",
                    "Theme dawn: a.png is to be deleted.", "Theme dawn: b.png is to be deleted.",
                    "Theme noon is to be deleted.", "Names are to be written in Fraktur.",
                    "Names are to be plain text again."));
    EXPECT_THAT(inWords({}, names), IsEmpty());
}

TEST(StagedInWords, AndInJsonByItsFieldNames) {
    EXPECT_EQ(QJsonDocument(toJson(everything(), dateFromUnix(1'700'000'000))), QJsonDocument::fromJson(R"({
        "pendingChanges": {
            "org.example.atlas": {"iconPaths": ["/IconCache/org.example.atlas/icon_1.png",
                "/Users/practice/Library/Application Support/com.tavrik.Tavrik/PendingChanges/Icons/org.example.atlas/icon_4.png"],
                "selectedIndex": 0},
            "org.example.gone": {"iconPaths": [], "selectedIndex": 2},
            "org.example.kite": {"iconPaths": [], "selectedIndex": null}},
        "markedForDeletion": {"org.example.atlas": [0, 2]},
        "pendingThemeIconHides": [{"themeID": "dusk", "iconFileName": "org.example.kite.png"}],
        "pendingThemeIconDeletions": {"dawn": ["a.png", "b.png"]},
        "pendingThemeDeletions": ["noon"],
        "pendingFont": "Fraktur", "pendingReset": true, "timestamp": "2023-11-14T22:13:20Z"})"));
    EXPECT_TRUE(toJson(StagedChanges(), std::nullopt)[QLatin1String("timestamp")].isNull());
}
