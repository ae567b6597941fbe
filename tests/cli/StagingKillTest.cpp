#include "RunningCompanion.h"

#include <gmock/gmock.h>

#include <random>

using namespace tavrik;
using namespace tavrik::test;
using testing::HasSubstr;
using testing::Not;

namespace {

/// What is staged for the one application of the test.
struct State {
    std::vector<std::string> icons;
    int selected = -1;

    bool operator==(const State&) const = default;
};

void PrintTo(const State& state, std::ostream* stream) {
    *stream << testing::PrintToString(state.icons) << " selected " << state.selected;
}

class StagingKill : public testing::Test {
protected:
    State staged() {
        const QJsonObject all =
            companion.object({"status", "--json"})[QLatin1String("pendingChanges")].toObject();
        const QJsonObject change = all[QLatin1String(bundleID.c_str())].toObject();
        State state{.icons = {}, .selected = change[QLatin1String("selectedIndex")].toInt(-1)};
        for (const auto& path : change[QLatin1String("iconPaths")].toArray())
            state.icons.push_back(path.toString().toStdString());
        return state;
    }

    int random(int below) { return std::uniform_int_distribution(0, below - 1)(generator); }

    struct Step {
        std::vector<std::string> arguments;
        State after; ///< an icon to come has an empty path
    };

    Step nextStep(const State& before) {
        State after = before;
        const int count = static_cast<int>(before.icons.size());
        const int kind = count < 2 ? 0 : random(10);
        if (kind < 5) {
            after.icons.emplace_back();
            after.selected = count;
            return {{"icon", "add", bundleID, picture}, after};
        }
        if (kind == 5)
            return {{"discard"}, State()};
        const int index = random(count);
        const std::string digits = std::to_string(index);
        if (kind < 8) {
            after.selected = index;
            return {{"icon", "select", bundleID, digits}, after};
        }
        after.icons.erase(after.icons.begin() + index);
        if (after.selected >= index)
            after.selected = after.selected == index ? -1 : after.selected - 1;
        return {{"icon", "remove", bundleID, digits}, after};
    }

    RunningCompanion companion;
    const std::string bundleID = companion.plainApp();
    const std::string picture = companion.picture("red.png", Qt::red).string();
    const PosixFileManager volume{companion.root()};
    std::mt19937 generator{20010101};
};

} // namespace

TEST_F(StagingKill, LeavesTheStateBeforeOrAfterWithEveryIconThere) {
    constexpr int kRounds = 40;
    const MacPath recoveryFile(
        "/Users/practice/Library/Application Support/com.tavrik.Tavrik/PendingChanges/pendingChanges.plist");
    const auto start = std::chrono::steady_clock::now();
    ASSERT_EQ(companion.run({"icon", "add", bundleID, picture}).exitStatus, 0);
    const auto whole =
        std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - start);

    int killed = 0;
    State before = staged();
    for (int round = 0; round < kRounds; ++round) {
        auto [arguments, after] = nextStep(before);
        SCOPED_TRACE(testing::PrintToString(arguments) + " in round " + std::to_string(round));
        killed += companion.runAndKill(arguments, whole * random(110) / 100) ? 1 : 0;
        const State found = staged();
        if (found != before) {
            if (!after.icons.empty() && after.icons.back().empty() && !found.icons.empty())
                after.icons.back() = found.icons.back();
            ASSERT_EQ(found, after);
        }
        for (const std::string& icon : found.icons)
            EXPECT_TRUE(volume.exists(MacPath(icon))) << icon;
        if (volume.exists(recoveryFile)) {
            EXPECT_THAT(companion.readByPython(recoveryFile), HasSubstr("\"iconChanges\""));
        }
        before = found;
    }
    EXPECT_GE(killed, kRounds / 4) << "too few were killed to mean anything";

    // Nothing is left in the way, and what no one names is gone.
    const ToolResult recovered = companion.run({"recover"});
    EXPECT_EQ(recovered.exitStatus, before == State() ? 3 : 0) << recovered.output << recovered.errors;
    EXPECT_EQ(staged(), before);
    std::vector<std::string> left;
    for (const auto& [path, entry] : treeOf(volume, recoveryFile.parent() / "Icons")) {
        if (entry.starts_with("file") && path.find("_thumb") == std::string::npos)
            left.push_back((recoveryFile.parent() / "Icons" / path).string());
    }
    EXPECT_THAT(left, testing::UnorderedElementsAreArray(before.icons));
    EXPECT_FALSE(volume.exists(recoveryFile.parent().parent() / ".lock"));
}
