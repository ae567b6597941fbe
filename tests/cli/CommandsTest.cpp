#include "RunningCompanion.h"

#include <filesystem>

using namespace tavrik;
using namespace tavrik::test;
using namespace testing;

namespace {

class Commands : public RunningCompanion {
protected:
    QJsonObject row() { return json({"icon", "list", kAtlas}).object(); }

    QJsonArray shown() { return row()[QLatin1String("displayPaths")].toArray(); }

    int selected() { return row()[QLatin1String("selectedIconIndex")].toInt(-2); }

    const std::string red = picture("red.png", Qt::red);
    const std::string blue = picture("blue.jpg", Qt::blue);
    const std::string text = file("text.png", bytesOf("no picture at all"));
};

} // namespace

TEST_F(Commands, FurnishAndShowAMacWithRecordsByTheirFieldNamesAndLogLinesApart) {
    std::filesystem::remove_all(root.string());
    const ToolResult listed = run({"apps", "--json"});
    EXPECT_THAT(listed.errors, HasSubstr("Found iOS app: ")) << "log lines belong to standard error";
    const std::string log = file("log", bytesOf("before\n"));
    const ToolResult logged = run({"--log", log, "apps"});
    EXPECT_THAT(logged.output + logged.errors, Not(HasSubstr("Found iOS app: ")));
    EXPECT_THAT(textOf(*PosixFileManager(own.path()).read(MacPath("/log"))),
                AllOf(StartsWith("before\n"), HasSubstr("\nFound iOS app: ")));
    EXPECT_THAT(run({"--log", log + "/log", "discard"}, 3).errors, HasSubstr("cannot be written there"));
    const QJsonArray apps = QJsonDocument::fromJson(QByteArray::fromStdString(listed.output)).array();
    ASSERT_GE(apps.size(), 40);
    std::set<QString> identifiers;
    for (const auto& app : apps) {
        EXPECT_EQ(app.toObject().keys().join(u' ').toStdString(),
                  "bundleID hiddenPermanentIndices icon id isIOSApp isUnsupportedApp name path "
                  "pendingAdditionPaths permanentIconPaths selectedIconIndex themeIcons");
        EXPECT_TRUE(identifiers.insert(app[QLatin1String("bundleID")].toString()).second);
    }
    EXPECT_EQ(json({"dock"}).array().size(), 10);
    EXPECT_EQ(json({"wrapper", "list"}), QJsonDocument(QJsonArray()));
    EXPECT_EQ(run({"practice", "where"}).output, root.string() + "\n");
    run({"picture", red});
    EXPECT_GT(QImage(QString::fromStdString(red)).width(), 1000);
}

TEST_F(Commands, FilterApplicationsAsTheWindowDoes) {
    run({"icon", "add", kAtlas, red});
    const auto shown = [&](Arguments options) {
        options.insert(options.begin(), "apps");
        std::set<std::string> found;
        for (const auto& app : json(options).array())
            found.insert(app.toObject()[QLatin1String("bundleID")].toString().toStdString());
        return found;
    };
    const auto all = shown({});
    const auto supported = shown({"--filter", "all"});
    EXPECT_THAT(all, AllOf(IsSupersetOf(supported), Contains(kIOSApp)));
    EXPECT_THAT(supported, Not(Contains(kIOSApp)));
    EXPECT_EQ(shown({"--unsupported"}), all);
    EXPECT_THAT(shown({"--filter", "themed"}), ElementsAre(kAtlas));
    EXPECT_EQ(shown({"--filter", "unthemed"}).size(), supported.size() - 1);
    EXPECT_THAT(shown({"--search", " ATLÁS "}), ElementsAre(kAtlas));
    EXPECT_THAT(shown({"--search", kIOSApp}), IsEmpty());
    EXPECT_THAT(run({"apps", "--search", kIOSApp}).output,
                HasSubstr("\"--unsupported\" shows the others too."));
    EXPECT_THAT(shown({"--search", kIOSApp, "--unsupported"}), ElementsAre(kIOSApp));
    EXPECT_THAT(shown({"--dock", "--search", "example"}), AllOf(Contains(kAtlas), SizeIs(Lt(10U))));
    const auto otherShapes = shown({"--non-squircle"});
    EXPECT_THAT(otherShapes, AllOf(Not(IsEmpty()), SizeIs(Lt(supported.size()))));
    EXPECT_EQ(shown({"--non-squircle"}), otherShapes) << "what was looked at is remembered";
}

TEST_F(Commands, StageOneStyleOrPlainText) {
    const QJsonArray fonts = json({"font", "list", "--preview", "Hi 2"}).array();
    ASSERT_EQ(fonts.size(), 20);
    EXPECT_EQ(fonts[0].toObject()[QLatin1String("preview")].toString(), QStringLiteral("𝐇𝐢 𝟐"));
    EXPECT_THAT(run({"font", "list"}).output, HasSubstr("Fullwidth                            Ｆｕｌｌ"));

    const auto shown = [&] { return run({"font", "show"}).output; };
    EXPECT_THAT(shown(), AllOf(HasSubstr("Names are in plain text."), Not(HasSubstr("Staged"))));
    run({"font", "set", "Small Caps"});
    EXPECT_THAT(shown(), HasSubstr("Staged: Small Caps, sᴍᴀʟʟ ᴄᴀᴘs."));
    run({"font", "set", "Fullwidth"});
    EXPECT_THAT(shown(), AllOf(HasSubstr("Staged: Fullwidth"), Not(HasSubstr("Small Caps"))));
    run({"font", "reset"});
    EXPECT_THAT(shown(), AllOf(HasSubstr("Staged: plain text again."), Not(HasSubstr("Fullwidth"))));
}

TEST_F(Commands, StageIconsFromCallToCall) {
    const ToolResult added = run({"icon", "add", kAtlas, red, text, blue, red + ".missing"}, 1);
    EXPECT_THAT(added.output, AllOf(HasSubstr("red.png is icon 0 of "), HasSubstr("blue.jpg is icon 1 of ")));
    EXPECT_THAT(added.errors,
                AllOf(HasSubstr("text.png"), HasSubstr("There is no file at " + red + ".missing")));
    EXPECT_EQ(selected(), 1);
    const QJsonArray before = shown();
    EXPECT_EQ(pictureAt(before[0]).size(), QSize(1024, 1024));
    EXPECT_GT(pictureAt(before[0]).pixelColor(512, 512).red(), 200);
    EXPECT_GT(pictureAt(before[1]).pixelColor(512, 512).blue(), 200);
    EXPECT_THAT(run({"status"}).output, HasSubstr("Atlas: 2 new icons; icon_1.png (index 1) is chosen."));

    run({"icon", "select", kAtlas, "0"});
    EXPECT_EQ(selected(), 0);
    EXPECT_THAT(run({"recover"}).output, HasSubstr("icon_0.png (index 0) is chosen"));

    run({"icon", "remove", kAtlas, "0"});
    EXPECT_EQ(shown(), QJsonArray{before[1]});
    EXPECT_TRUE(pictureAt(before[0]).isNull());
    EXPECT_EQ(selected(), -1);

    EXPECT_THAT(run({"discard"}).output, HasSubstr("1 new icon;"));
    EXPECT_TRUE(shown().isEmpty());
    EXPECT_TRUE(pictureAt(before[1]).isNull() && !volume.exists(kRecoveryFile));
    EXPECT_THAT(run({"status"}).output, HasSubstr("Nothing is staged."));
    run({"discard"}, 3);
    run({"recover"}, 3);

    // What is applied stays until a deletion is applied too.
    const MacPath applied = kSupport / "IconCache" / kAtlas;
    ASSERT_TRUE(volume.createFolder(applied));
    for (const char* name : {"icon_0.png", "icon_1.png"})
        ASSERT_TRUE(volume.create(applied / name, bytesOf("a picture, for all that staging knows")));
    run({"icon", "remove", kAtlas, "0"});
    EXPECT_EQ(row()[QLatin1String("hiddenPermanentIndices")].toArray(), QJsonArray{0});
    EXPECT_THAT(run({"icon", "list", kAtlas}).output,
                AllOf(HasSubstr("permanent"), HasSubstr("icon_0.png is deleted when the changes are applied")));
    run({"icon", "add", kAtlas, blue});
    EXPECT_TRUE(shown()[1].toString().endsWith(QLatin1String("/icon_2.png")));
    run({"discard"});
    EXPECT_EQ(shown().size(), 2);
    EXPECT_TRUE(volume.exists(applied / "icon_0.png"));
}

TEST_F(Commands, LeaveADamagedRecoveryFileToThePerson) {
    run({"icon", "add", kAtlas, red});
    const MacPath folder = kRecoveryFile.parent();
    const std::string whole(textOf(*volume.read(kRecoveryFile)));
    const std::pair<std::string, std::vector<Arguments>> cases[] = {
        {whole.substr(0, whole.size() / 2), {{"status"}, {"icon", "add", kAtlas, blue}}},
        {"", {{"status", "--json"}, {"font", "set", "Fullwidth"}}},
        {"text", {{"recover"}, {"font", "show"}}},
        {"<plist version=\"1.0\"><array/></plist>",
         {{"icon", "list", kAtlas}, {"icon", "select", kAtlas, "none"}}},
    };
    for (const auto& [damaged, commands] : cases) {
        run({"icon", "add", kAtlas, red});
        ASSERT_TRUE(volume.write(kRecoveryFile, bytesOf(damaged)));
        const FileTree before = treeOf(volume, folder);
        for (const Arguments& arguments : commands) {
            const ToolResult result = run(arguments, 1);
            EXPECT_THAT(result.errors,
                        AllOf(HasSubstr(kRecoveryFile.string()), HasSubstr("tavrikctl discard")));
            EXPECT_THAT(result.output, Not(HasSubstr("{")));
        }
        EXPECT_THAT(differences(before, treeOf(volume, folder)), IsEmpty());
        run({"discard"});
        EXPECT_THAT(treeOf(volume, folder),
                    Contains(Pair(Ne(kRecoveryFile.name()), before.at(kRecoveryFile.name()))));
    }
}

TEST_F(Commands, RefuseInASentenceAndChangeNothing) {
    run({"icon", "add", kAtlas, red});

    const struct {
        Arguments arguments;
        int exitStatus;
        const char* sentence;
    } cases[] = {
        {{}, 2, "subcommand"},
        {{"icon"}, 2, "subcommand"},
        {{"apps", "--filter", "restyled"}, 2, "--filter"},
        {{"wrapper", "create", kAtlas}, 2, "IMAGE"},
        {{"wrapper", "create", "org.nobody.nothing", red}, 1, "shows no application with the identifier"},
        {{"wrapper", "create", kAtlas, red + ".missing"}, 1, "There is no file at"},
        {{"wrapper", "create", kAtlas, text}, 1, "text.png"},
        {{"wrapper", "create", kIOSApp, red}, 3, "is an iOS app"},
        {{"wrapper", "update", "com.apple.dt.Xcode", red}, 3, "does not work through a wrapper"},
        {{"wrapper", "create", "com.example.harbour.breakwater", red}, 3, "outside the standard places"},
        {{"wrapper", "remove", kAtlas}, 3, "has no wrapper"},
        {{"picture", "out.jpg"}, 2, ".png"},
        {{"picture", root.string() + "/missing/folder/out.png"}, 1, "cannot be written"},
        {{"icon", "add", kAtlas}, 2, "IMAGE"},
        {{"icon", "add", kIOSApp, red}, 3, "is an iOS app"},
        {{"icon", "add", "org.nobody.nothing", red}, 1, "shows no application with the identifier"},
        {{"icon", "add", kAtlas, text, red + ".missing"}, 1, "There is no file at"},
        {{"icon", "list", "../.."}, 1, "shows no application with the identifier"},
        {{"icon", "select", "../..", "none"}, 1, "shows no application with the identifier"},
        {{"icon", "select", kAtlas, "1"}, 1, "has 1 icon (0) and none with the index 1."},
        {{"icon", "select", kAtlas, "first"}, 2, "or none for the application's own icon"},
        {{"icon", "remove", kAtlas}, 2, "INDEX"},
        {{"icon", "remove", kAtlas, "none"}, 2, "an index is a number"},
        {{"icon", "remove", kAtlas, "99999999999999999999999"}, 1, "none with the index 9999"},
        {{"icon", "remove", kIOSApp, "0"}, 1, "has no icons to choose from yet."},
        {{"font", "set", "small caps"}, 1, "Did you mean \"Small Caps\"?"},
        {{"font", "set", "Bold Fraktur"}, 1, "Did you mean \"Mathematical Bold Fraktur\""},
        {{"font", "set", "Comic Sans"}, 1, "\"tavrikctl font list\" shows them all."},
    };

    const auto staged = [&] { return json({"status"})[QLatin1String("pendingChanges")]; };
    const QJsonValue stagedBefore = staged();
    const FileTree before = treeOf(root);
    for (const auto& [arguments, exitStatus, sentence] : cases)
        EXPECT_THAT(run(arguments, exitStatus).errors, HasSubstr(sentence));
    EXPECT_EQ(staged(), stagedBefore);
    // Two files have the time of day in them: the settings, for hidden applications that were seen, and the
    // recovery file, which is written anew when it is taken up.
    EXPECT_THAT(differences(before, treeOf(root)),
                Each(AnyOf(HasSubstr("/AppSettings."), EndsWith("/pendingChanges.plist"))));
}
