#include "RunningCompanion.h"

#include <QImage>

#include <gmock/gmock.h>

#include <algorithm>

using namespace tavrik;
using namespace tavrik::test;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

const MacPath kSupport("/Users/practice/Library/Application Support/com.tavrik.Tavrik");
const MacPath kRecoveryFile = kSupport / "PendingChanges/pendingChanges.plist";

class IconCommands : public testing::Test {
protected:
    ToolResult run(const std::vector<std::string>& arguments, int exitStatus) {
        ToolResult result = companion.run(arguments);
        EXPECT_EQ(result.exitStatus, exitStatus) << testing::PrintToString(arguments) << "\n"
                                                 << result.output << result.errors;
        return result;
    }

    QJsonObject row() { return companion.object({"icon", "list", bundleID, "--json"}); }

    QJsonArray shown() { return row()[QLatin1String("displayPaths")].toArray(); }

    int selected() { return row()[QLatin1String("selectedIconIndex")].toInt(-2); }

    QImage iconAt(int index) {
        return QImage(QString::fromStdString(companion.hostPath(shown()[index]).string()));
    }

    bool isThere(const QJsonValue& path) { return volume.exists(MacPath(path.toString().toStdString())); }

    RunningCompanion companion;
    const std::string bundleID = companion.plainApp();
    const std::string red = companion.picture("red.png", Qt::red).string();
    const std::string blue = companion.picture("blue.jpg", Qt::blue).string();
    const std::string text = companion.file("text.png", bytesOf("no picture at all")).string();
    PosixFileManager volume{companion.root()};
};

} // namespace

TEST_F(IconCommands, StageFromCallToCall) {
    const ToolResult added = run({"icon", "add", bundleID, red, text, blue, red + ".missing"}, 1);
    EXPECT_THAT(added.output, AllOf(HasSubstr("red.png is icon 0 of "), HasSubstr("blue.jpg is icon 1 of ")));
    EXPECT_THAT(added.errors,
                AllOf(HasSubstr("text.png"), HasSubstr("There is no file at " + red + ".missing")));
    EXPECT_EQ(iconAt(0).size(), QSize(1024, 1024));
    EXPECT_GT(iconAt(0).pixelColor(512, 512).red(), 200);
    EXPECT_GT(iconAt(1).pixelColor(512, 512).blue(), 200);
    EXPECT_EQ(selected(), 1);
    EXPECT_THAT(run({"status"}, 0).output, AllOf(HasSubstr(": 2 new icons; icon_1.png (index 1) is chosen."),
                                                 Not(HasSubstr(bundleID + ": 2 new"))));

    run({"icon", "select", bundleID, "0"}, 0);
    EXPECT_EQ(selected(), 0);
    EXPECT_THAT(companion.readByPython(kRecoveryFile),
                AllOf(HasSubstr("\"" + bundleID + "\""), HasSubstr("icon_0.png"), HasSubstr("icon_1.png"),
                      HasSubstr("\"selectedIndex\": 0"), HasSubstr("\"timestamp\"")));
    EXPECT_THAT(run({"recover"}, 0).output, HasSubstr("icon_0.png (index 0) is chosen"));

    const QJsonArray before = shown();
    run({"icon", "remove", bundleID, "0"}, 0);
    EXPECT_EQ(shown(), QJsonArray{before[1]});
    EXPECT_FALSE(isThere(before[0]));
    EXPECT_EQ(selected(), -1);

    EXPECT_THAT(run({"discard"}, 0).output, HasSubstr("1 new icon;"));
    EXPECT_TRUE(shown().isEmpty());
    EXPECT_FALSE(isThere(before[1]) || volume.exists(kRecoveryFile));
    EXPECT_THAT(run({"status"}, 0).output, HasSubstr("Nothing is staged."));
    EXPECT_TRUE(companion.object({"status", "--json"})[QLatin1String("pendingChanges")].toObject().isEmpty());
    run({"discard"}, 3);
    run({"recover"}, 3);
}

TEST_F(IconCommands, KeepAppliedIconsUntilTheChangesAreApplied) {
    const MacPath folder = kSupport / "IconCache" / bundleID;
    ASSERT_TRUE(volume.createFolder(folder));
    for (const char* name : {"icon_0.png", "icon_1.png"})
        ASSERT_TRUE(volume.create(folder / name, bytesOf("a picture, for all that staging knows")));
    run({"icon", "remove", bundleID, "0"}, 0);
    EXPECT_EQ(row()[QLatin1String("hiddenPermanentIndices")].toArray(), QJsonArray{0});
    EXPECT_EQ(shown().size(), 1);
    EXPECT_TRUE(volume.exists(folder / "icon_0.png"));
    EXPECT_THAT(run({"icon", "list", bundleID}, 0).output,
                AllOf(HasSubstr("permanent"), HasSubstr("icon_0.png is deleted when the changes are applied")));
    EXPECT_THAT(run({"status"}, 0).output, HasSubstr("icon_0.png to be deleted; its own icon is chosen."));

    run({"icon", "add", bundleID, blue}, 0);
    EXPECT_EQ(shown()[1].toString().section(QLatin1Char('/'), -1), QLatin1String("icon_2.png"));
    run({"discard"}, 0);
    EXPECT_EQ(shown().size(), 2) << "what was applied stays";
}

TEST_F(IconCommands, RefuseInASentenceAndChangeNothing) {
    run({"icon", "add", bundleID, red}, 0);
    const std::string mobile =
        companion.appWhere([](const QJsonObject& app) { return app[QLatin1String("isIOSApp")].toBool(); });

    const struct {
        std::vector<std::string> arguments;
        int exitStatus;
        const char* sentence;
    } cases[] = {
        {{"icon", "add", mobile, red}, 3, "is an iOS app"},
        {{"icon", "add", "com.apple.dt.Xcode", red}, 3, "does not work through a wrapper"},
        {{"icon", "add", "org.nobody.nothing", red}, 1, "shows no application with the identifier"},
        {{"icon", "add", bundleID, text, red + ".missing"}, 1, "There is no file at"},
        {{"icon", "add", bundleID}, 2, "IMAGE"},
        {{"icon", "list", "org.nobody.nothing"}, 1, "shows no application with the identifier"},
        {{"icon", "list", "../.."}, 1, "shows no application with the identifier"},
        {{"icon", "select", "../..", "none"}, 1, "shows no application with the identifier"},
        {{"icon", "select", bundleID, "1"}, 1, "has 1 icon (0) and none with the index 1."},
        {{"icon", "remove", bundleID, "99999999999999999999999"}, 1, "none with the index 9999"},
        {{"icon", "remove", mobile, "0"}, 1, "has no icons to choose from yet."},
        {{"icon", "select", bundleID, "first"}, 2, "or none for the application's own icon"},
        {{"icon", "select", bundleID, "-1"}, 2, ""},
        {{"icon", "remove", bundleID, "none"}, 2, "an index is a number"},
        {{"icon", "remove", bundleID}, 2, "INDEX"},
        {{"icon"}, 2, "subcommand"},
    };

    const QJsonValue staged = companion.object({"status", "--json"})[QLatin1String("pendingChanges")];
    const FileTree icons = treeOf(volume, kSupport / "PendingChanges/Icons");
    for (const auto& [arguments, exitStatus, sentence] : cases)
        EXPECT_THAT(run(arguments, exitStatus).errors, HasSubstr(sentence));
    EXPECT_EQ(companion.object({"status", "--json"})[QLatin1String("pendingChanges")], staged);
    EXPECT_THAT(differences(icons, treeOf(volume, kSupport / "PendingChanges/Icons")), IsEmpty());
}

TEST_F(IconCommands, LeaveADamagedRecoveryFileToThePerson) {
    run({"icon", "add", bundleID, red}, 0);
    const std::string whole(textOf(*volume.read(kRecoveryFile)));
    for (const std::string& damaged : {whole.substr(0, whole.size() / 2), std::string(), std::string("text"),
                                       std::string("<plist version=\"1.0\"><array/></plist>")}) {
        ASSERT_TRUE(volume.write(kRecoveryFile, bytesOf(damaged)));
        const FileTree before = treeOf(volume, kSupport / "PendingChanges");
        const std::vector<std::string> commands[] = {
            {"status"},
            {"status", "--json"},
            {"recover"},
            {"icon", "add", bundleID, blue},
            {"icon", "list", bundleID},
            {"icon", "select", bundleID, "none"},
        };
        for (const auto& arguments : commands) {
            const ToolResult result = run(arguments, 1);
            EXPECT_THAT(result.errors,
                        AllOf(HasSubstr(kRecoveryFile.string()), HasSubstr("tavrikctl discard")));
            EXPECT_THAT(result.output, Not(HasSubstr("{")));
        }
        EXPECT_THAT(differences(before, treeOf(volume, kSupport / "PendingChanges")), IsEmpty());

        run({"discard"}, 0);
        const auto names = volume.list(kRecoveryFile.parent());
        EXPECT_TRUE(std::ranges::any_of(*names, [&](const std::string& name) {
            const auto content = volume.read(kRecoveryFile.parent() / name);
            return content && textOf(*content) == damaged;
        })) << damaged;
        run({"icon", "add", bundleID, red}, 0);
    }
}
