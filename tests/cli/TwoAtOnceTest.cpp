#include "RunningCompanion.h"
#include "model/SettingsManager.h"
#include "model/SupportFolderLock.h"
#include "platform/Mac.h"
#include "platform/practice/PracticeMac.h"

#include <gmock/gmock.h>
#include <unistd.h>

using namespace tavrik;
using namespace tavrik::test;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

TEST(TwoAtOnce, TheSecondLooksButChangesNothingAndSaysWhoIsFirst) {
    const RunningCompanion companion;
    const std::string picture = companion.picture("green.png", Qt::green).string();
    const std::string bundleID = companion.plainApp();
    ASSERT_EQ(companion.run({"icon", "add", bundleID, picture}).exitStatus, 0);
    practice::PracticeMac practice(companion.root());
    const auto window = SupportFolderLock::take(practice.mac(), supportFolder(practice.mac().volume), "Tavrik");
    ASSERT_TRUE(window) << window.error().description;
    const std::string first = "Tavrik (process " + std::to_string(::getpid()) + ")";

    const FileTree before = companion.valuables();
    const std::vector<std::string> writing[] = {
        {"wrapper", "create", bundleID, picture},
        {"wrapper", "update", bundleID, picture},
        {"wrapper", "remove", bundleID},
        {"practice", "reset"},
        {"icon", "add", bundleID, picture},
        {"icon", "select", bundleID, "none"},
        {"icon", "remove", bundleID, "0"},
        {"discard"},
        {"recover"},
    };
    for (const auto& arguments : writing) {
        const ToolResult result = companion.run(arguments);
        EXPECT_EQ(result.exitStatus, 3) << arguments[0] << " " << arguments[1] << "\n" << result.output;
        EXPECT_THAT(result.errors, HasSubstr(first)) << arguments[0] << " " << arguments[1];
    }
    const std::vector<std::string> looking[] = {
        {"apps"}, {"dock"}, {"wrapper", "list"}, {"practice", "where"}, {"icon", "list", bundleID}, {"status"},
    };
    for (const auto& arguments : looking) {
        const ToolResult result = companion.run(arguments);
        EXPECT_EQ(result.exitStatus, 0) << arguments[0] << "\n" << result.errors;
        EXPECT_THAT(result.errors, Not(HasSubstr(first))) << arguments[0];
    }
    const QJsonObject row = companion.object({"icon", "list", bundleID, "--json"});
    EXPECT_EQ(row[QLatin1String("pendingAdditionPaths")].toArray().size(), 1);
    EXPECT_THAT(differences(before, companion.valuables()), IsEmpty());
}
