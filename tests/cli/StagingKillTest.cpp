#include "RunningCompanion.h"
#include "platform/ChildProcess.h"

#include <cerrno>
#include <random>

using namespace tavrik;
using namespace tavrik::test;

namespace {

using StagingKill = RunningCompanion;

/// What is staged for the one application of the test.
struct State {
    std::vector<std::string> icons;
    int selected = -1;

    bool operator==(const State&) const = default;
};

State stagedIn(const QJsonDocument& status) {
    const QJsonValue change = status[QLatin1String("pendingChanges")][QLatin1String(kAtlas.c_str())];
    State state{.icons = {}, .selected = change[QLatin1String("selectedIndex")].toInt(-1)};
    for (const auto& path : change[QLatin1String("iconPaths")].toArray())
        state.icons.push_back(path.toString().toStdString());
    return state;
}

/// An icon to come has an empty path.
std::pair<Arguments, State> nextStep(const State& before, const std::string& picture, std::mt19937& generator) {
    const auto random = [&](int below) { return std::uniform_int_distribution(0, below - 1)(generator); };
    State after = before;
    const int count = static_cast<int>(before.icons.size());
    const int kind = count < 2 ? 0 : random(10);
    if (kind < 5) {
        after.icons.emplace_back();
        after.selected = count;
        return {{"icon", "add", kAtlas, picture}, after};
    }
    if (kind == 5)
        return {{"discard"}, State()};
    const int index = random(count);
    if (kind < 8) {
        after.selected = index;
        return {{"icon", "select", kAtlas, std::to_string(index)}, after};
    }
    after.icons.erase(after.icons.begin() + index);
    if (after.selected >= index)
        after.selected = after.selected == index ? -1 : after.selected - 1;
    return {{"icon", "remove", kAtlas, std::to_string(index)}, after};
}

} // namespace

TEST_F(StagingKill, LeavesTheStateBeforeOrAfterWithEveryIconThere) {
    constexpr int kRounds = 40;
    const std::string red = picture("red.png", Qt::red);
    std::mt19937 generator{20010101};
    const auto start = std::chrono::steady_clock::now();
    run({"icon", "add", kAtlas, red});
    long whole = (std::chrono::steady_clock::now() - start) / std::chrono::milliseconds(1);

    int killed = 0;
    State before = stagedIn(json({"status"}));
    for (int round = 0; round < kRounds; ++round) {
        auto [arguments, after] = nextStep(before, red, generator);
        SCOPED_TRACE(testing::PrintToString(arguments) + " in round " + std::to_string(round));
        const std::chrono::milliseconds moment(std::uniform_int_distribution(0L, whole)(generator));
        const auto ended = runChild(HostPath(TAVRIKCTL), arguments, {.time = moment}); // or else killed
        ASSERT_TRUE(ended || ended.error().code == ETIMEDOUT) << ended.error().description;
        killed += ended ? 0 : 1;
        whole += ended ? -whole / 8 : whole / 8; // about every second is killed, however busy the machine
        const State found = stagedIn(json({"status"}));
        if (found != before) {
            if (!after.icons.empty() && after.icons.back().empty() && !found.icons.empty())
                after.icons.back() = found.icons.back();
            ASSERT_EQ(found.icons, after.icons);
            ASSERT_EQ(found.selected, after.selected);
        }
        for (const std::string& icon : found.icons)
            EXPECT_TRUE(volume.exists(MacPath(icon))) << icon;
        before = found;
    }
    EXPECT_GE(killed, kRounds / 4) << "too few were killed to mean anything";

    // Nothing is left in the way, and what no one names is gone.
    run({"recover"}, before == State() ? 3 : 0);
    EXPECT_TRUE(stagedIn(json({"status"})) == before);
    std::vector<std::string> left;
    const MacPath icons = kRecoveryFile.parent() / "Icons";
    for (const auto& [path, entry] : treeOf(volume, icons)) {
        if (entry.starts_with("file") && path.find("_thumb") == std::string::npos)
            left.push_back((icons / path).string());
    }
    EXPECT_THAT(left, testing::UnorderedElementsAreArray(before.icons));
    EXPECT_FALSE(volume.exists(kSupport / ".lock"));
}
