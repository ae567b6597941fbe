#include "RunningCompanion.h"

#include <QDir>
#include <QFile>

using namespace tavrik;
using namespace tavrik::test;
using testing::HasSubstr;

namespace {

using ThemeCommands = RunningCompanion;

Bytes contentOf(const std::string& file) {
    QFile opened(QString::fromStdString(file));
    EXPECT_TRUE(opened.open(QIODevice::ReadOnly)) << file;
    const QByteArray content = opened.readAll();
    return {content.begin(), content.end()};
}

} // namespace

TEST_F(ThemeCommands, AFolderOfPicturesBecomesAThemeThatTravels) {
    const std::string pictures = (own.path() / "Tide").string();
    ASSERT_TRUE(QDir().mkpath(QString::fromStdString(pictures + "/deeper")));
    const auto put = [&](const std::string& name, const QColor& colour) { picture("Tide/" + name, colour); };
    put("org.example.atlas.png", Qt::red);
    put("Atlas.png", Qt::blue);
    put("ember-notes 2.png", Qt::green);
    put("text-editor.png", Qt::yellow);
    put("zebra.png", Qt::gray);
    put("deeper/Chess.png", Qt::gray);
    ASSERT_TRUE(QFile::link(QStringLiteral("zebra.png"), QString::fromStdString(pictures + "/Chess.png")));
    file("Tide/Clock.png", Bytes(20, std::uint8_t{1}));
    file("Tide/Read me.txt", Bytes(20, std::uint8_t{1}));

    const ToolResult made = run({"theme", "import-folder", pictures}, 1);
    EXPECT_THAT(made.output, HasSubstr("The theme \"Tide\" is made, with 3 icons of 7 pictures."));
    EXPECT_THAT(made.output, HasSubstr("text-editor.png"));
    EXPECT_THAT(made.output, HasSubstr("Not needed: Atlas.png, zebra.png."));
    EXPECT_THAT(made.errors, HasSubstr("Clock.png"));
    EXPECT_THAT(run({"theme", "import-folder", pictures}, 1).errors, HasSubstr("already exists. --name NAME"));

    run({"theme", "apply", "tide"});
    run({"theme", "apply", "Tide"});
    const QJsonObject staged = json({"status"}).object()[QLatin1String("pendingChanges")].toObject();
    EXPECT_EQ(staged.keys(),
              (QStringList{QStringLiteral("com.apple.Chess"), QStringLiteral("com.example.lumen.ember-notes"),
                           QStringLiteral("org.example.atlas")}));
    const QJsonArray atlas =
        staged[QLatin1String("org.example.atlas")].toObject()[QLatin1String("iconPaths")].toArray();
    ASSERT_EQ(atlas.size(), 1) << "applying twice adds nothing";
    EXPECT_EQ(pictureAt(atlas[0]).pixelColor(512, 512), QColor(Qt::red));

    const std::string first = (own.path() / "first.tavriktheme").string();
    const std::string second = (own.path() / "second.tavriktheme").string();
    run({"theme", "export", "Tide", first});
    EXPECT_THAT(run({"theme", "export", "Tide", first}, 3).errors, HasSubstr("--force"));
    run({"theme", "export", "Tide", first, "--force"});
    EXPECT_THAT(run({"theme", "import", first}).output, HasSubstr("\"Tide 2\""));
    run({"practice", "reset"});
    EXPECT_EQ(json({"theme", "list"}).array().size(), 0);
    run({"theme", "import", first});
    run({"theme", "export", "Tide", second});
    EXPECT_EQ(contentOf(first), contentOf(second));
    EXPECT_THAT(run({"theme", "import", pictures + "/zebra.png"}, 1).errors, HasSubstr("zebra.png"));
}

TEST_F(ThemeCommands, WhatIsStagedForAThemeIsToldAndTakenBack) {
    const std::string red = picture("red.png", Qt::red);
    run({"theme", "create", " Tide "});
    run({"theme", "add-icon", "Tide", kAtlas, red});
    run({"theme", "add-icon", "Tide", "com.apple.iCal", red});
    const auto state = [&] {
        return json({"theme", "show", "Tide"})
            .object()[QLatin1String("icons")]
            .toArray()[1]
            .toObject()[QLatin1String("state")]
            .toString()
            .toStdString();
    };
    const auto covered = [&] {
        return json({"theme", "coverage", "Tide"}).object()[QLatin1String("covered")].toArray().size();
    };

    EXPECT_EQ(covered(), 1);
    run({"theme", "hide", "Tide", kAtlas});
    EXPECT_EQ(state(), "to be hidden");
    EXPECT_EQ(covered(), 0);
    EXPECT_THAT(run({"theme", "apply", "Tide"}, 3).errors, HasSubstr("has no icon to apply"));
    EXPECT_THAT(run({"status"}).output, HasSubstr("Theme Tide: org.example.atlas.png is to be hidden."));
    EXPECT_THAT(run({"theme", "unhide", "Tide", kAtlas}).output, HasSubstr("that is taken back"));
    EXPECT_THAT(run({"theme", "unhide", "Tide", kAtlas}, 3).errors, HasSubstr("is not hidden"));
    EXPECT_EQ(state(), "");
    run({"theme", "remove-icon", "Tide", kAtlas});
    EXPECT_EQ(state(), "to be deleted");
    run({"theme", "add-icon", "Tide", kAtlas, red});
    EXPECT_EQ(state(), "") << "a new icon is not one to be deleted";

    run({"theme", "rename", "Tide", "Ebb"});
    run({"theme", "delete", "Ebb"});
    EXPECT_TRUE(json({"theme", "list"}).array()[0].toObject()[QLatin1String("isToBeDeleted")].toBool());
    EXPECT_THAT(run({"theme", "apply", "Ebb"}, 1).errors, HasSubstr("is to be deleted"));
    run({"discard"});
    EXPECT_FALSE(json({"theme", "list"}).array()[0].toObject()[QLatin1String("isToBeDeleted")].toBool());
}

TEST_F(ThemeCommands, SayWhatIsWrong) {
    EXPECT_THAT(run({"theme", "apply", "Tide"}, 1).errors, HasSubstr("There are no themes yet."));
    run({"theme", "create", "Tide"});
    const std::string red = picture("red.png", Qt::red);

    const struct {
        Arguments arguments;
        const char* sentence;
        int exitStatus = 1;
    } cases[] = {
        {{"theme", "show", "Tdie"}, "Did you mean \"Tide\"?"},
        {{"theme", "show", "Something else"}, "theme list"},
        {{"theme", "create", "a/b"}, "Theme name contains invalid characters."},
        {{"theme", "create", "Tide"}, "A theme with this name already exists."},
        {{"theme", "rename", "Tide", "."}, "Theme name contains invalid characters."},
        {{"theme", "hide", "Tide", kAtlas}, "has no icon for \"org.example.atlas\""},
        {{"theme", "add-icon", "Tide", "../up", red}, "could not be added"},
        {{"theme", "add-icon", "Tide", kAtlas, "/nowhere.png"}, "There is no file"},
        {{"theme", "export", "Tide", own.path().string()}, "is a folder"},
        {{"theme", "import-folder", "/nowhere"}, "There is no folder at /nowhere."},
        {{"theme", "import-folder", root.string()}, "There are no pictures in"},
        {{"theme", "import-folder", own.path().string()}, "so no theme was made"},
        {{"theme", "list", "Tide"}, "", 2},
    };

    for (const auto& wrong : cases)
        EXPECT_THAT(run(wrong.arguments, wrong.exitStatus).errors, HasSubstr(wrong.sentence));
}

TEST_F(ThemeCommands, TheDistributionsIconSetIsTakenIn) {
    const std::string set = "/usr/share/icons/Numix-Circle/48/apps";
    if (!QDir(QString::fromStdString(set)).exists())
        GTEST_SKIP() << "numix-icon-theme-circle is not installed";
    const QJsonObject report = json({"theme", "import-folder", set, "--name", "Circle"}).object();
    std::map<std::string, std::string> taken;
    for (const QJsonValue match : report[QLatin1String("taken")].toArray())
        taken[match[QLatin1String("appName")].toString().toStdString()] =
            match[QLatin1String("fileName")].toString().toStdString();
    EXPECT_EQ(taken["Chess"], "chess.svg");
    EXPECT_EQ(taken["Disk Utility"], "org.gnome.DiskUtility.svg");
    EXPECT_FALSE(taken.contains("TextEdit"));
    EXPECT_GT(report[QLatin1String("unmatched")].toArray().size(), 1000);
    EXPECT_THAT(run({"theme", "apply", "Circle"}).output, HasSubstr("of \"Circle\" chosen."));
}
