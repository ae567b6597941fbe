#include "RunningCompanion.h"

#include <QJsonObject>

#include <gmock/gmock.h>

using namespace tavrik::test;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

TEST(FontCommands, ShowEveryStyleWrittenInItself) {
    const RunningCompanion companion;
    const QJsonArray fonts = companion.json({"font", "list", "--preview", "Hi 2", "--json"});
    ASSERT_EQ(fonts.size(), 20);
    EXPECT_EQ(fonts[0].toObject()[QLatin1String("preview")].toString(), QStringLiteral("𝐇𝐢 𝟐"));
    EXPECT_EQ(fonts[1].toObject()[QLatin1String("preview")].toString(), QStringLiteral("𝐻𝑖 2"));
    EXPECT_THAT(companion.run({"font", "list"}).output,
                HasSubstr("Fullwidth                            Ｆｕｌｌ"));
}

TEST(FontCommands, StageOneStyleOrPlainText) {
    const RunningCompanion companion;
    const auto shown = [&] { return companion.run({"font", "show"}).output; };
    EXPECT_THAT(shown(), AllOf(HasSubstr("Names are in plain text."), Not(HasSubstr("Staged"))));

    EXPECT_EQ(companion.run({"font", "set", "Small Caps"}).exitStatus, 0);
    EXPECT_THAT(shown(), HasSubstr("Staged: Small Caps, sᴍᴀʟʟ ᴄᴀᴘs."));
    EXPECT_EQ(companion.run({"font", "set", "Fullwidth"}).exitStatus, 0);
    EXPECT_THAT(shown(), AllOf(HasSubstr("Staged: Fullwidth"), Not(HasSubstr("Small Caps"))));
    EXPECT_EQ(companion.run({"font", "reset"}).exitStatus, 0);
    EXPECT_THAT(shown(), AllOf(HasSubstr("Staged: plain text again."), Not(HasSubstr("Fullwidth"))));

    const FileTree before = companion.valuables();

    const struct {
        const char* typed;
        const char* hint;
    } wrong[] = {
        {"small caps", "Did you mean \"Small Caps\"?"},
        {"Bold Fraktur", "Did you mean \"Mathematical Bold Fraktur\""},
        {"Comic Sans", "\"tavrikctl font list\" shows them all."},
        {"", "\"tavrikctl font list\" shows them all."},
    };

    for (const auto& [typed, hint] : wrong) {
        const tavrik::ToolResult result = companion.run({"font", "set", typed});
        EXPECT_EQ(result.exitStatus, 1) << typed;
        EXPECT_THAT(result.errors, HasSubstr(hint));
    }
    EXPECT_EQ(differences(before, companion.valuables()), std::vector<std::string>());
}
