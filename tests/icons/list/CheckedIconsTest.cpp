#include "icons/list/CheckedIcons.h"

#include "platform/PlainFolders.h"
#include "support/SmallMac.h"

#include <gmock/gmock.h>

namespace tavrik::test {
namespace {

const std::string kPermanent = "/Support/IconCache/a/icon_";
const std::string kPending = "/Support/PendingChanges/Icons/a/icon_";

std::vector<MacPath> icons(const std::string& start, const std::vector<int>& numbers) {
    std::vector<MacPath> paths;
    for (const int number : numbers)
        paths.emplace_back(start + std::to_string(number) + ".png");
    return paths;
}

TEST(CheckedIcons, AreWithoutWhatIsWrongAndItIsSaid) {
    SmallMac small;
    ASSERT_TRUE(small.files.createFolder(MacPath("/Support")));
    for (const auto& present : {icons(kPermanent, {0, 1, 2}), icons(kPending, {3, 4})}) {
        ASSERT_TRUE(createPlainFolder(small.files, MacPath("/"), present.front().parent()));
        for (const MacPath& path : present)
            ASSERT_TRUE(small.files.create(path, bytesOf("icon")));
    }
    const std::string lost = "⚠️ Warning: Permanent icon missing at " + kPermanent + "8.png";
    const auto outside = [](int index) {
        return "⚠️ Warning: Selected index " + std::to_string(index) +
               " out of bounds for Atlas, resetting to -1";
    };

    struct Icons {
        std::vector<int> permanent, pending;
        std::set<int> hidden;
        int selected;
    };

    const struct {
        const char* what;
        Icons read;
        std::size_t themeIcons;
        Icons checked;
        std::vector<std::string> warnings;
    } cases[] = {
        {"all is well", {{0, 1, 2}, {3}, {1}, 2}, 0, {{0, 1, 2}, {3}, {1}, 2}, {}},
        {"7 of three and no theme's", {{0, 1, 2}, {}, {}, 7}, 0, {{0, 1, 2}, {}, {}, -1}, {outside(7)}},
        {"the last of the themes", {{0}, {}, {}, 2}, 2, {{0}, {}, {}, 2}, {}},
        {"one behind it", {{0}, {}, {}, 3}, 2, {{0}, {}, {}, -1}, {outside(3)}},
        {"missing before the chosen one",
         {{0, 2, 8}, {7, 4}, {0}, 3},
         0,
         {{0, 2}, {4}, {0}, 1},
         {lost, "⚠️ Warning: Pending icon missing at " + kPending + "7.png"}},
        {"missing before the theme's", {{0, 8}, {}, {}, 3}, 2, {{0}, {}, {}, 2}, {lost}},
        {"the chosen one is missing", {{0, 8}, {}, {}, 1}, 0, {{0}, {}, {}, -1}, {lost, outside(1)}},
        {"hidden numbers of no icon",
         {{0, 2}, {}, {-1, 0, 1}, 0},
         0,
         {{0, 2}, {}, {0}, 0},
         {"⚠️ Warning: Invalid hidden index -1", "⚠️ Warning: Invalid hidden index 1"}},
    };

    const auto rowOf = [](const Icons& row) {
        return IconRow{icons(kPermanent, row.permanent), icons(kPending, row.pending), row.hidden,
                       row.selected};
    };
    for (const auto& [what, read, themeIcons, checked, warnings] : cases) {
        const CheckedIcons result = checkedIcons(small.files, rowOf(read), themeIcons, "Atlas");
        EXPECT_TRUE(result.row == rowOf(checked)) << what;
        EXPECT_EQ(result.warnings, warnings) << what;
    }
    EXPECT_THAT(
        checkedIcons(small.files, {.pendingAdditionPaths = icons(kPermanent, {1})}, 0, "Atlas").warnings,
        testing::ElementsAre("⚠️ Warning: Path marked as pending but not in pending directory: " + kPermanent +
                             "1.png"));
}

} // namespace
} // namespace tavrik::test
