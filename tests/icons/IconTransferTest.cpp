#include "icons/IconTransfer.h"

#include "IconStage.h"
#include "icons/TransferRecord.h"
#include "support/FileTree.h"
#include "support/LogRecorder.h"

#include <algorithm>

namespace tavrik::test {

namespace {

using testing::ElementsAre;

constexpr int kMarked = 1;
constexpr int kOfATheme = 5; ///< stands behind the four permanent ones and another of the theme

/// Permanent icons 0 to 3 of the colours 1 to 4, and pending ones of the colours 5 and 6.
void furnish(IconStage& stage) {
    for (int i = 0; i < 4; ++i)
        stage.put(stage.icon(i), i + 1);
    stage.put(stage.pending / "icon_3.png", 5);
    stage.put(stage.pending / "icon_6.png", 6);
}

bool begin(IconProgram& program) {
    const MacPath permanent = program.store.iconCacheURL() / kAtlas;
    const MacPath pending = program.store.pendingIconsBaseURL() / kAtlas;
    return program.transfer.begin({{kAtlas,
                                    {permanent / "icon_0.png", permanent / "icon_2.png",
                                     permanent / "icon_3.png", pending / "icon_3.png", pending / "icon_6.png"},
                                    {kMarked}}});
}

void beginAndRun(IconProgram& program) {
    if (begin(program))
        program.transfer.run(kAtlas);
}

/// The colours of the icons at the places where a run says that they are.
std::vector<int> run(const IconStage& stage, IconProgram& program) {
    std::vector<int> colours;
    for (const auto& place : program.transfer.run(kAtlas))
        colours.push_back(place ? stage.colour(*place) : 0);
    return colours;
}

const auto kRow = ElementsAre(1, 3, 4, 5, 6);
const auto kAll = ElementsAre(1, 2, 3, 4, 5, 6);

struct IconTransferTest : testing::Test {
    IconStage stage;
    IconProgram program{stage};
    IconTransfer& transfer{program.transfer};

    IconTransferTest() { furnish(stage); }
};

} // namespace

TEST_F(IconTransferTest, DeletesMovesAndNumbersInTheOrderOfTheRow) {
    ASSERT_TRUE(begin(program));
    EXPECT_FALSE(program.store.removePendingFolderIfEmpty(kAtlas));
    const LogRecorder log;
    EXPECT_THAT(run(stage, program), kRow);
    EXPECT_THAT(log.lines(), ElementsAre("  Deleting 1 marked icons for com.example.atlas",
                                         "  Deleted: icon_1.png", "  Permanent icons after cleanup: 3",
                                         "  Re-indexed: icon_2 -> icon_1", "  Re-indexed: icon_3 -> icon_2",
                                         "  Re-indexed: icon_4 -> icon_3", "  Re-indexed: icon_6 -> icon_4"));
    EXPECT_THAT(stage.colours(stage.permanent), kRow);
    EXPECT_EQ(stage.colour(stage.permanent / "icon_4_thumb@2x.png"), 6);
    EXPECT_TRUE(program.store.removePendingFolderIfEmpty(kAtlas));
    EXPECT_FALSE(stage.disk.exists(stage.pending));

    transfer.end();
    EXPECT_THAT(transfer.interrupted(), ElementsAre());
    EXPECT_THAT(transfer.run(kAtlas), ElementsAre());
}

TEST(IconTransfer, ARunThatIsStoppedAnywhereIsFinishedByTheNext) {
    for (const Times times : {Times::forGood, Times::once}) {
        const auto finish = [&](IconStage& stage) {
            // An icon that could not be moved is skipped, so that later ones may come before it on disk.
            std::vector<int> all = stage.colours();
            if (times == Times::once)
                std::ranges::sort(all);
            EXPECT_THAT(all, testing::AnyOf(kRow, kAll));

            IconProgram again(stage);
            if (again.transfer.interrupted().empty()) {
                EXPECT_EQ(all.size(), 6u) << "changed without a record";
                ASSERT_TRUE(begin(again));
            }
            for (int time = 1; time <= 2; ++time) {
                EXPECT_THAT(run(stage, again), kRow);
                EXPECT_THAT(stage.colours(stage.permanent), testing::UnorderedElementsAre(1, 3, 4, 5, 6));
                EXPECT_EQ(again.store.listIcons(kAtlas).back(), stage.icon(4));
            }
        };
        stopAtEveryOperation(furnish, beginAndRun, finish, {times});
    }
}

TEST(IconTransfer, WhereverARunOrGivingItUpIsStoppedTheSelectedIconStaysTheSame) {
    for (const int selected : {2, kMarked, kOfATheme}) {
        const auto select = [&](IconStage& stage) {
            furnish(stage);
            IconProgram(stage).settings.setSelectedIcon(kAtlas, selected);
        };
        const auto work = [](IconProgram& program) {
            beginAndRun(program);
            program.transfer.abandon();
        };
        for (const bool givesUp : {true, false}) {
            stopAtEveryOperation(
                select, givesUp ? work : beginAndRun,
                [&](IconStage& stage) {
                    IconProgram again(stage);
                    givesUp ? again.transfer.abandon() : static_cast<void>(again.transfer.run(kAtlas));
                    const auto number = IconProgram(stage).settings.getSelectedIcon(kAtlas);
                    const auto icons = stage.colours(stage.permanent);
                    if (selected == kOfATheme)
                        EXPECT_EQ(number, icons.size() + 1);
                    else if (selected == kMarked && !std::ranges::count(icons, selected + 1))
                        EXPECT_EQ(number, std::nullopt);
                    else
                        EXPECT_EQ(icons.at(static_cast<std::size_t>(number.value_or(99))), selected + 1);
                },
                {Times::forGood});
        }
    }
}

TEST_F(IconTransferTest, ASecondRunRemembersTheSelectionFromBeforeTheFirst) {
    program.settings.setSelectedIcon(kAtlas, 2);
    beginAndRun(program);
    program.settings.setSelectedIcon(kAtlas, 2); // as if it had been killed before it stored the new number
    IconProgram again(stage);
    ASSERT_TRUE(again.transfer.begin({{kAtlas, again.store.listIcons(kAtlas), {0}}}));
    again.transfer.abandon();
    EXPECT_EQ(again.settings.getSelectedIcon(kAtlas), 1);
    EXPECT_EQ(stage.colour(stage.icon(1)), 3);
}

TEST_F(IconTransferTest, FindsIconsThatWereCopiedElsewhereAndBackAndDeletesNoneOfThem) {
    ASSERT_TRUE(begin(program));
    // All copies first, or a file system that gives numbers out again would give them the same ones.
    for (const MacPath& folder : {stage.permanent, stage.pending})
        ASSERT_TRUE(stage.disk.copy(folder, MacPath(folder.string() + " copy")));
    for (const MacPath& folder : {stage.permanent, stage.pending}) {
        ASSERT_TRUE(stage.disk.remove(folder));
        ASSERT_TRUE(stage.disk.move(MacPath(folder.string() + " copy"), folder));
    }
    EXPECT_THAT(run(stage, program), kRow);
    EXPECT_THAT(stage.colours(stage.permanent), kAll);
}

TEST_F(IconTransferTest, AnIconThatIsGoneIsNotTakenForTheOneUnderItsName) {
    ASSERT_TRUE(begin(program));
    ASSERT_TRUE(stage.disk.remove(stage.icon(2)));
    for (int time = 1; time <= 2; ++time)
        EXPECT_THAT(run(stage, program), ElementsAre(1, 0, 4, 5, 6));
}

TEST_F(IconTransferTest, TakesNothingForLostWhenAFileOrAFolderCannotBeReached) {
    ASSERT_TRUE(begin(program));
    for (const MacPath& folder : {stage.permanent, stage.pending}) {
        stage.mac.files.failOn("list", folder, EACCES);
        EXPECT_THAT(transfer.run(kAtlas), ElementsAre());
        EXPECT_FALSE(begin(program));
    }
    stage.mac.files.failOn("remove", stage.icon(1), EACCES);
    EXPECT_THAT(run(stage, program), kRow);
    EXPECT_EQ(program.store.listIcons(kAtlas).back(), stage.icon(6)) << "the numbers are kept";
    EXPECT_THAT(stage.colours(), kAll);
}

TEST_F(IconTransferTest, ARecordFromElsewhereReachesNoFileOutside) {
    const MacPath other = stage.support / "IconCache/com.example.other/icon_0.png";
    const MacPath outside = stage.support / "Themes/icon_0.png";
    stage.put(other, 8);
    stage.put(outside, 9);
    const auto recorded = [&](const MacPath& path) {
        const auto attributes = stage.disk.attributes(path);
        return RecordedIcon{path, FileIdentity{attributes->fileID, attributes->size}};
    };
    TransferRecord record;
    record.shown = {recorded(other), recorded(outside), recorded(stage.icon(0))};
    record.marked = record.shown;
    record.marked.push_back(recorded(stage.pending / "icon_3.png"));
    record.selected = recorded(outside);
    const TransferRecords records{{kAtlas, record}, {"../Themes", record}, {"a/b", record}, {"", record}};
    const MacPath file = stage.support / "PendingChanges/transfer.plist";
    const FileTree before = treeOf(stage.disk, stage.support);

    ASSERT_TRUE(stage.disk.write(file, *plist::serialize(encodeTransferRecords(records), plist::Format::xml)));
    EXPECT_THAT(transfer.interrupted(), ElementsAre(kAtlas));
    const LogRecorder log;
    EXPECT_THAT(transfer.run(kAtlas), ElementsAre(std::nullopt, std::nullopt, stage.icon(0)));
    EXPECT_EQ(log.count("Ignoring a recorded icon that is not one of com.example.atlas"), 5u);
    EXPECT_THAT(transfer.run("../Themes"), ElementsAre());
    transfer.abandon();

    const plist::Dictionary strange{
        {"shown", plist::Array{1, "x"}}, {"marked", "y"}, {"selected", 1}, {"selectedBehind", -4}};
    for (const plist::Value& odd :
         {plist::Value(plist::Array{1}), plist::Value(plist::Dictionary{{kAtlas, strange}, {"com.b", 3}})}) {
        const plist::Value root(plist::Dictionary{{"applications", odd}});
        ASSERT_TRUE(stage.disk.write(file, *plist::serialize(root, plist::Format::binary)));
        EXPECT_THAT(transfer.run(kAtlas), testing::Each(std::nullopt));
        transfer.abandon();
    }
    transfer.end();
    EXPECT_THAT(differences(before, treeOf(stage.disk, stage.support)), ElementsAre());
}

} // namespace tavrik::test
