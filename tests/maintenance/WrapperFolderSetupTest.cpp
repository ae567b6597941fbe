#include "maintenance/WrapperFolderSetup.h"

#include "MaintenanceStage.h"
#include "platform/Tools.h"

#include <cerrno>

namespace tavrik::test {

namespace {

using WrapperFolderSetup = MaintenanceStage;
using testing::ElementsAre;

const std::string kHidden = "Successfully applied hidden flag to Tavrik folder";

} // namespace

TEST_F(WrapperFolderSetup, MakesTheFolderOnceAndHidesItEachTime) {
    log.clear();
    setUpWrapperFolder(whole, kWrappers);
    setUpWrapperFolder(whole, kWrappers);
    EXPECT_THAT(log.lines(), ElementsAre("Created Tavrik folder at: " + kWrappers.string(), kHidden, kHidden));
    EXPECT_THAT(*volume.propertyList(practice::kHiddenPaths).as<plist::Array>(),
                ElementsAre(plist::Value(kWrappers.string())));
}

TEST_F(WrapperFolderSetup, FallsBackToTheAttributeOnlyWhereTheFlagIsRefused) {
    struct Case {
        Result<ToolResult> chflags;
        int xattrStatus;
        std::vector<std::string> lines;
    };

    const std::string worked = "Successfully applied hidden flag using xattr";
    const std::string failed = "Failed to apply hidden flag using xattr";
    const Case cases[] = {
        {ToolResult{1, "", "chflags: no\n"}, 0, {"Error applying hidden flag: chflags: no\n", worked}},
        {ToolResult{64, "", ""}, 0, {"Failed to apply hidden flag with exit code: 64", worked}},
        {ToolResult{1, "", "no"}, 2, {"Error applying hidden flag: no", failed}},
        {Error{"it is not there"}, 0, {"Error applying hidden flag: it is not there"}},
    };
    ASSERT_TRUE(own.files.createFolder(kWrappers));
    for (const Case& each : cases) {
        std::vector<std::vector<std::string>> runs;
        session.setInterceptor([&](const MacPath& tool, const auto& arguments, const auto&) {
            runs.push_back(arguments);
            runs.back().insert(runs.back().begin(), tool.string());
            return std::optional(runs.size() == 1 ? each.chflags : ToolResult{each.xattrStatus, "", ""});
        });
        log.clear();
        setUpWrapperFolder(whole, kWrappers);
        EXPECT_EQ(log.lines(), each.lines);
        EXPECT_THAT(runs.front(), ElementsAre("/usr/bin/chflags", "hidden", kWrappers.string()));
        if (runs.size() > 1) {
            EXPECT_THAT(runs[1], ElementsAre("/usr/bin/xattr", "-w", "com.apple.FinderInfo",
                                             std::string(59, '0') + "C0000", kWrappers.string()));
        }
    }
}

TEST_F(WrapperFolderSetup, RunsNothingOnAFolderThatIsNotItsOwn) {
    ASSERT_TRUE(own.files.createFolder(kWrappers.parent()));
    session.setInterceptor([](const auto& tool, const auto&, const auto&) {
        ADD_FAILURE() << tool.string();
        return std::nullopt;
    });
    log.clear();
    files.failOn("createFolder", kWrappers, EACCES);
    setUpWrapperFolder(whole, kWrappers);
    files.failNothing();
    ASSERT_TRUE(own.files.createLink(kWrappers, "/Applications"));
    setUpWrapperFolder(whole, kWrappers);
    EXPECT_THAT(log.lines(), testing::Each(testing::StartsWith("Error setting up Tavrik folder: ")));
    EXPECT_EQ(log.lines().size(), 2U);
}

} // namespace tavrik::test
