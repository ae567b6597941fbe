#include "RunningCompanion.h"
#include "model/SupportFolderLock.h"
#include "platform/practice/PracticeMac.h"

#include <unistd.h>

using namespace tavrik;
using namespace tavrik::test;
using testing::HasSubstr;
using testing::Not;
using TwoAtOnce = RunningCompanion;

TEST_F(TwoAtOnce, TheSecondLooksButChangesNothingAndSaysWhoIsFirst) {
    const std::string green = picture("green.png", Qt::green);
    run({"icon", "add", kAtlas, green});
    run({"backup", "create"});
    practice::PracticeMac practice(root);
    const auto window = SupportFolderLock::take(practice.mac(), kSupport, "Tavrik");
    ASSERT_TRUE(window) << window.error().description;
    const std::string first = "Tavrik (process " + std::to_string(::getpid()) + ")";

    const FileTree before = treeOf(root);
    const Arguments writing[] = {{"wrapper", "create", kAtlas, green},
                                 {"wrapper", "update", kAtlas, green},
                                 {"wrapper", "remove", kAtlas},
                                 {"practice", "reset"},
                                 {"icon", "add", kAtlas, green},
                                 {"icon", "select", kAtlas, "none"},
                                 {"icon", "remove", kAtlas, "0"},
                                 {"font", "set", "Fullwidth"},
                                 {"font", "reset"},
                                 {"discard"},
                                 {"apply", "--close-running-apps"},
                                 {"refresh"},
                                 {"backup", "create"},
                                 {"backup", "restore", "Original State"},
                                 {"backup", "keep", "5"},
                                 {"recover"}};
    for (const Arguments& arguments : writing)
        EXPECT_THAT(run(arguments, 3).errors, HasSubstr(first));
    const std::pair<Arguments, const char*> looking[] = {{{"apps"}, "Atlas"},
                                                         {{"dock"}, "com.apple.Safari"},
                                                         {{"wrapper", "list"}, "No"},
                                                         {{"practice", "where"}, "PracticeMac"},
                                                         {{"status"}, "Atlas: 1 new"},
                                                         {{"plan"}, "first time: Atlas"},
                                                         {{"icon", "list", kAtlas}, "icon_0.png"},
                                                         {{"font", "show"}, "plain text"},
                                                         {{"backup", "list"}, "Original State"},
                                                         {{"backup", "verify"}, "good"},
                                                         {{"backup", "show", "Original State"}, "Nothing has"}};
    for (const auto& [arguments, shown] : looking) {
        const ToolResult result = run(arguments);
        EXPECT_THAT(result.output, HasSubstr(shown));
        EXPECT_THAT(result.errors, Not(HasSubstr(first))) << arguments[0];
    }
    EXPECT_THAT(differences(before, treeOf(root)), testing::ElementsAre());
}
