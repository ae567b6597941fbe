#include "UiStage.h"
#include "platform/PathRules.h"
#include "platform/Sqlite.h"
#include "platform/Volume.h"
#include "platform/practice/Layout.h"
#include "ui/models/LackingLetters.h"
#include "ui/models/UserNames.h"

namespace tavrik::test {

class FontsViewTest : public UiStage {
protected:
    void open() {
        start();
        model().setPlace(WindowModel::Place::Fonts);
        ASSERT_TRUE(waitFor([&] { return !role(0, "sample").isEmpty(); }));
    }

    QString role(int row, const char* name) {
        const FontStylesModel& styles = *model().fonts()->styles();
        return styles.index(row).data(styles.roleNames().key(name)).toString();
    }

    /// As if the style had been applied.
    void wear(const std::string& style) {
        program->managers().settings.setCurrentFontState(FontState{style, true, {}});
        program->managers().pendingChanges.noteRestored();
        model().fonts()->refresh();
    }

    bool clickStyle(const char* name) { return click(QStringLiteral("style:") + QLatin1String(name)); }

    /// Of a card, when the mark is on it.
    static bool hasMark(const char* style, const char* mark) {
        QQuickItem* const card = find(QStringLiteral("style:") + QLatin1String(style));
        QQuickItem* const item = card ? card->findChild<QQuickItem*>(QLatin1String(mark)) : nullptr;
        return item && item->isVisible();
    }

    const StagedChanges& staged() { return program->managers().pendingChanges.staged(); }
};

TEST_F(FontsViewTest, AClickStagesAStyleAndTheNextOneTakesItBackOrChoosesAnother) {
    struct Case {
        const char* worn; ///< none when empty
        std::vector<const char*> clicks;
        std::optional<std::string> font;
        bool isReset;
    };

    const char* const reset = "resetFonts";
    const std::vector<Case> cases{
        {"", {"Mathematical Bold"}, "Mathematical Bold", false},
        {"", {"Mathematical Bold", "Mathematical Bold"}, {}, false},
        {"", {"Mathematical Bold", "Mathematical Italic"}, "Mathematical Italic", false},
        {"", {"Mathematical Bold", "takeBackFont"}, {}, false},
        {"Mathematical Bold", {"Mathematical Bold"}, {}, false},
        {"Mathematical Bold", {"Mathematical Script", "Mathematical Bold"}, {}, false},
        {"Mathematical Bold", {reset}, {}, true},
        {"Mathematical Bold", {reset, "takeBackFont"}, {}, false},
        {"Mathematical Bold", {reset, "Mathematical Bold"}, {}, false},
        {"Mathematical Bold", {reset, "Mathematical Script"}, "Mathematical Script", false},
        {"Mathematical Bold", {"Mathematical Script", reset}, {}, true},
    };
    open();
    for (const Case& each : cases) {
        model().fonts()->takeBack();
        if (*each.worn)
            wear(each.worn);
        for (const char* name : each.clicks)
            ASSERT_TRUE(click(QLatin1String(name)) || clickStyle(name)) << name;
        EXPECT_EQ(staged().pendingFont, each.font) << each.clicks.back();
        EXPECT_EQ(staged().pendingReset, each.isReset) << each.clicks.back();
        EXPECT_EQ(hasMark("Mathematical Bold", "current"), *each.worn != '\0');
        for (const char* style : {"Mathematical Bold", "Mathematical Italic", "Mathematical Script"})
            EXPECT_EQ(hasMark(style, "staged"), each.font == style) << style;
    }
}

TEST_F(FontsViewTest, ThereIsNothingToResetInPlainNames) {
    open();
    EXPECT_FALSE(click(QStringLiteral("resetFonts")));
    EXPECT_FALSE(find(QStringLiteral("takeBackFont")));
    wear("Circled");
    EXPECT_TRUE(click(QStringLiteral("resetFonts")));
    EXPECT_TRUE(staged().pendingReset);
}

TEST_F(FontsViewTest, ArrowKeysAndTheSpaceBarChoose) {
    open();
    find(QStringLiteral("fontStyles"))->forceActiveFocus();
    press(window(), Qt::Key_Right);
    press(window(), Qt::Key_Down);
    press(window(), Qt::Key_Space);
    EXPECT_EQ(staged().pendingFont, "Mathematical Script");
    press(window(), Qt::Key_Return);
    EXPECT_EQ(staged().pendingFont, std::nullopt);
}

TEST_F(FontsViewTest, ATypedTextIsShownInEveryStyleUntilItIsCleared) {
    open();
    const QString names = role(0, "sample");
    ASSERT_TRUE(click(QStringLiteral("fontSample")));
    type(window(), QStringLiteral("Sol 2"));
    EXPECT_EQ(role(0, "sample"), QStringLiteral("𝐒𝐨𝐥 𝟐"));
    EXPECT_EQ(role(13, "sample"), QStringLiteral("Ⓢⓞⓛ ②"));
    press(window(), Qt::Key_Escape);
    EXPECT_EQ(role(0, "sample"), names);
}

TEST_F(FontsViewTest, TellsWhichNamesAStyleCannotWriteAndOnceWhichNoStyleCan) {
    {
        auto database =
            sqlite::Connection::open(mac.volume.hostPath(launchpadDatabasePath(practice::kTemporaryFolder)),
                                     sqlite::OpenMode::readWrite);
        ASSERT_TRUE(database &&
                    database->execute("UPDATE groups SET title = 'Games 2' WHERE title = 'Studio'"));
    }
    open();
    EXPECT_THAT(model().fonts()->lackOfAll().toStdString(),
                testing::AllOf(testing::StartsWith("2 names"), testing::HasSubstr("Éclair Recipes, 星図")));
    EXPECT_EQ(role(0, "lack"), QString()); // bold has digits
    EXPECT_THAT(role(1, "lack").toStdString(),
                testing::AllOf(testing::StartsWith("1 name with"), testing::EndsWith(": Games 2")));
}

TEST(LackingLetters, AreLettersAndDigitsThatTheStyleHasNot) {
    const FontReplacer fonts;
    const FontReplacer::FontMap& bold = fonts.allFontMaps()[0];
    const FontReplacer::FontMap& italic = fonts.allFontMaps()[1];

    struct Case {
        const char* name;
        bool inBold;
        bool inItalic;
    };

    for (const Case& each : std::vector<Case>{{"Atlas", false, false},
                                              {"Quill & Co.", false, false},
                                              {"Tidy 🚀", false, false},
                                              {"7 Days", false, true},
                                              {"Café", true, true},
                                              {"Cafe\u0301", true, true},
                                              {"星図", true, true},
                                              {"½ Price", true, true},
                                              {"", false, false}}) {
        EXPECT_EQ(isLackingLetters(each.name, bold), each.inBold) << each.name;
        EXPECT_EQ(isLackingLetters(each.name, italic), each.inItalic) << each.name;
    }
}

TEST(SampleNames, AreShortPlainAndBeginDifferently) {
    using Names = std::vector<std::string>;
    const Names apps{"Atlas", "Amber Tool", "Anchor", "Extraordinarily", "Café", "Beacon", "R2", "Tips"};
    EXPECT_EQ(sampleNames({.apps = apps, .folders = {"Éclairs", "Studio", "Under Way"}}, 3),
              (Names{"Anchor", "Beacon", "Studio"}));
    EXPECT_EQ(sampleNames({.apps = apps, .folders = {}}, 3), (Names{"Anchor", "Beacon", "Tips"}));
    EXPECT_EQ(sampleNames({.apps = {"Café"}, .folders = {}}, 3), Names());
}

} // namespace tavrik::test
