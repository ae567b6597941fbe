#include "fonts/FontStage.h"

#include <functional>
#include <set>

namespace tavrik::test {

namespace {

using testing::IsEmpty;

/// Stands for a kill: nothing in the program catches it.
struct Killed {};

class FontKills : public FontStage {
protected:
    /// Changes to the style with a kill before the settings' change of that number, or with a disk that fails
    /// from there on; false when it was over before.
    bool stoppedAt(std::size_t number, bool byKill, const std::string& style) {
        static const std::set<std::string> kChanges{"write", "create", "copy", "replace", "remove"};
        std::size_t changes = 0;
        files.setRule([&](const FileOperation& operation) -> std::optional<int> {
            const bool isSettings = operation.path.string().find("AppSettings") != std::string::npos;
            if (!isSettings || !kChanges.contains(operation.name) || ++changes < number)
                return std::nullopt;
            if (byKill)
                throw Killed();
            return EIO;
        });
        try {
            change(style);
        } catch (const Killed&) {
        }
        files.failNothing();
        start();
        return changes >= number;
    }
};

} // namespace

TEST_F(FontKills, CostNoCapitalsWhereverTheyFall) {
    session.setInterceptor([](const auto&, const auto&, const auto&) { return ToolResult(); });
    const std::string bold = "Mathematical Bold", caps = "Small Caps", script = "Mathematical Script";

    const struct {
        std::vector<std::string> before;
        std::string stopped;
        std::string after;
    } cases[] = {
        {{}, caps, ""},
        {{}, caps, bold},
        {{bold}, caps, bold},
        {{bold, caps}, bold, ""},
        {{bold, caps}, bold, script},
        {{caps}, "", bold},
        {{bold, caps}, "", caps},
    };

    for (const auto& [before, stopped, after] : cases)
        for (const bool byKill : {true, false}) {
            SCOPED_TRACE("to '" + stopped + "', then to '" + after + (byKill ? "', killed" : "', failing"));
            std::size_t number = 1;
            for (bool wasStopped = true; wasStopped && !HasFailure(); ++number) {
                program->settings.removeFolderBackups(
                    {RowID{folders[0]}, RowID{folders[1]}, RowID{folders[2]}});
                for (const std::string& style : before)
                    change(style);
                wasStopped = stoppedAt(number, byKill, stopped);
                change(after);
                EXPECT_THAT(differences(titles(), firstIn(after)), IsEmpty()) << number;
                fonts().resetAllFonts();
                EXPECT_THAT(differences(titles(), first), IsEmpty()) << number;
            }
            EXPECT_GT(number, 10u) << "too few operations were seen to mean anything";
        }
}

} // namespace tavrik::test
