#include "icons/list/CheckedIcons.h"

#include "platform/PlainFolders.h"
#include "support/SmallMac.h"

#include <gmock/gmock.h>

namespace tavrik::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kPermanent = "/Support/IconCache/a/icon_";
constexpr const char* kPending = "/Support/PendingChanges/Icons/a/icon_";

std::vector<MacPath> icons(const char* start, const std::vector<int>& numbers) {
    std::vector<MacPath> paths;
    for (const int number : numbers)
        paths.emplace_back(start + std::to_string(number) + ".png");
    return paths;
}

/// On disk are the permanent icons 0, 1 and 2 and the pending ones 3 and 4.
class CheckedIconsTest : public testing::Test {
protected:
    CheckedIconsTest() {
        EXPECT_TRUE(small.files.createFolder(MacPath("/Support")));
        for (auto paths : {icons(kPermanent, {0, 1, 2}), icons(kPending, {3, 4})}) {
            EXPECT_TRUE(createPlainFolder(small.files, MacPath("/Support"), paths.front().parent()));
            for (const MacPath& path : paths)
                EXPECT_TRUE(small.files.create(path, bytesOf("icon")));
        }
    }

    SmallMac small;
};

TEST_F(CheckedIconsTest, DropsWhatIsWrongAndSaysSo) {
    const struct {
        const char* what;
        IconRow row;
        std::size_t themeIcons;
        IconRow checked;
        std::vector<std::string> warnings;
    } cases[] = {
        {"all is well",
         {icons(kPermanent, {0, 1, 2}), icons(kPending, {3}), {1}, 2},
         0,
         {icons(kPermanent, {0, 1, 2}), icons(kPending, {3}), {1}, 2},
         {}},
        {"a selection of 7 with three icons and none of themes",
         {icons(kPermanent, {0, 1, 2}), {}, {}, 7},
         0,
         {icons(kPermanent, {0, 1, 2}), {}, {}, -1},
         {"⚠️ Warning: Selected index 7 out of bounds for Atlas, resetting to -1"}},
        {"the last icon of the themes",
         {icons(kPermanent, {0}), {}, {}, 2},
         2,
         {icons(kPermanent, {0}), {}, {}, 2},
         {}},
        {"one behind it",
         {icons(kPermanent, {0}), {}, {}, 3},
         2,
         {icons(kPermanent, {0}), {}, {}, -1},
         {"⚠️ Warning: Selected index 3 out of bounds for Atlas, resetting to -1"}},
        {"missing icons before the chosen one",
         {icons(kPermanent, {0, 2, 8}), icons(kPending, {7, 4}), {0}, 3},
         0,
         {icons(kPermanent, {0, 2}), icons(kPending, {4}), {0}, 1},
         {"⚠️ Warning: Permanent icon missing at /Support/IconCache/a/icon_8.png",
          "⚠️ Warning: Pending icon missing at /Support/PendingChanges/Icons/a/icon_7.png"}},
        {"missing icons before the theme's that is chosen",
         {icons(kPermanent, {0, 8}), {}, {}, 3},
         2,
         {icons(kPermanent, {0}), {}, {}, 2},
         {"⚠️ Warning: Permanent icon missing at /Support/IconCache/a/icon_8.png"}},
        {"a permanent icon among the pending ones",
         {{}, icons(kPermanent, {1}), {}, 0},
         0,
         {{}, {}, {}, -1},
         {"⚠️ Warning: Path marked as pending but not in pending directory: /Support/IconCache/a/icon_1.png",
          "⚠️ Warning: Selected index 0 out of bounds for Atlas, resetting to -1"}},
        {"hidden numbers of no icon",
         {icons(kPermanent, {0, 2}), {}, {-1, 0, 1}, 0},
         0,
         {icons(kPermanent, {0, 2}), {}, {0}, 0},
         {"⚠️ Warning: Invalid hidden index -1", "⚠️ Warning: Invalid hidden index 1"}},
    };

    for (const auto& [what, row, themeIcons, checked, warnings] : cases) {
        const CheckedIcons result = checkedIcons(small.files, row, themeIcons, "Atlas");
        EXPECT_TRUE(result.row == checked) << what;
        EXPECT_EQ(result.warnings, warnings) << what;
    }
}

} // namespace
} // namespace tavrik::test
