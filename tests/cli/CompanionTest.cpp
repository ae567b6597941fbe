#include "RunningCompanion.h"
#include "platform/practice/Layout.h"

#include <gmock/gmock.h>

#include <set>

using namespace tavrik;
using namespace tavrik::test;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

bool isIOS(const QJsonObject& app) {
    return app[QLatin1String("isIOSApp")].toBool();
}

bool liesOutside(const QJsonObject& app) {
    return app[QLatin1String("path")].toString().startsWith(QLatin1String("/opt/"));
}

} // namespace

TEST(Companion, ListsRecordsByTheirFieldNamesAndKeepsLogLinesApart) {
    const RunningCompanion companion;
    const ToolResult raw = companion.run({"apps", "--json"});
    EXPECT_THAT(raw.errors, HasSubstr("Found iOS app: ")) << "log lines belong to standard error";
    const QJsonArray apps = companion.json({"apps", "--json"});
    ASSERT_GE(apps.size(), 40);
    std::set<std::string> identifiers;
    for (const auto& entry : apps) {
        const QJsonObject app = entry.toObject();
        for (const char* field :
             {"id", "name", "bundleID", "icon", "path", "isIOSApp", "isUnsupportedApp", "permanentIconPaths",
              "pendingAdditionPaths", "hiddenPermanentIndices", "selectedIconIndex", "themeIcons"})
            EXPECT_TRUE(app.contains(QLatin1String(field))) << field;
        EXPECT_TRUE(identifiers.insert(app[QLatin1String("bundleID")].toString().toStdString()).second);
    }

    const QJsonArray dock = companion.json({"dock", "--json"});
    EXPECT_EQ(dock.size(), 10);
    EXPECT_TRUE(companion.json({"wrapper", "list", "--json"}).isEmpty());
    EXPECT_EQ(companion.run({"practice", "where"}).output, companion.root().string() + "\n");
}

TEST(Companion, RefusesInASentenceAndChangesNothing) {
    const RunningCompanion companion;
    const std::string plain = companion.plainApp();
    const std::string mobile = companion.appWhere(isIOS);
    const std::string outside = companion.appWhere(liesOutside);
    const std::string picture = companion.picture("good.png", Qt::red).string();
    const auto whole = PosixFileManager(HostPath("/")).read(MacPath(picture));
    const std::string cut = companion.file("cut.png", ByteView(*whole).first(whole->size() / 2)).string();
    const std::string text = companion.file("text.png", bytesOf("no picture at all")).string();

    const struct {
        std::vector<std::string> arguments;
        int exitStatus;
        const char* sentence;
    } cases[] = {
        {{"wrapper", "create", "org.nobody.nothing", picture}, 1, "shows no application with the identifier"},
        {{"wrapper", "create", plain, picture + ".missing"}, 1, "There is no file at"},
        {{"wrapper", "create", plain, text}, 1, "text.png"},
        {{"wrapper", "create", plain, cut}, 1, "cut.png"},
        {{"wrapper", "create", mobile, picture}, 3, "is an iOS app"},
        {{"wrapper", "update", "com.apple.dt.Xcode", picture}, 3, "does not work through a wrapper"},
        {{"wrapper", "create", outside, picture}, 3, "outside the standard places"},
        {{"wrapper", "remove", plain}, 3, "has no wrapper"},
        {{"wrapper", "create", plain}, 2, "IMAGE"},
        {{"picture", "out.jpg"}, 2, ".png"},
        {{"nonsense"}, 2, ""},
        {{}, 2, "subcommand"},
        {{"picture", companion.root().string() + "/missing/folder/out.png"}, 1, "cannot be written"},
    };

    const FileTree before = companion.valuables();
    for (const auto& [arguments, exitStatus, sentence] : cases) {
        const ToolResult result = companion.run(arguments);
        EXPECT_EQ(result.exitStatus, exitStatus) << sentence << "\n" << result.output << result.errors;
        EXPECT_THAT(result.errors, HasSubstr(sentence));
    }
    // Listing notes the hidden-flag applications in the settings, each time with the time of day.
    std::vector<std::string> changed = differences(before, companion.valuables());
    std::erase_if(changed,
                  [](const std::string& line) { return line.find("AppSettings.") != std::string::npos; });
    EXPECT_THAT(changed, IsEmpty());
}
