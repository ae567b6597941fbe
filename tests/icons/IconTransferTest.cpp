#include "icons/IconTransfer.h"

#include "IconStoreStage.h"
#include "icons/TransferRecord.h"
#include "support/FileTree.h"
#include "support/LogRecorder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <optional>
#include <utility>

namespace tavrik::test {

namespace {

using testing::ElementsAre;

/// Permanent icons 0 to 3 of the colours 1 to 4, the one of colour 2 marked, and pending ones of colours 5
/// and 6.
void furnish(IconStoreStage& stage) {
    for (int i = 0; i < 4; ++i)
        stage.put(stage.permanent / iconFileName(i), i + 1);
    stage.put(stage.pending / "icon_4.png", 5);
    stage.put(stage.pending / "icon_6.png", 6);
}

std::vector<IconTransfer::Application> staged(const IconStore& store) {
    const MacPath permanent = store.iconCacheURL() / kAtlas;
    const MacPath pending = store.pendingIconsBaseURL() / kAtlas;
    return {{kAtlas,
             {permanent / "icon_0.png", permanent / "icon_2.png", permanent / "icon_3.png",
              pending / "icon_4.png", pending / "icon_6.png"},
             {1}}};
}

void beginAndRun(IconProgram& program) {
    if (program.transfer.begin(staged(program.store)))
        program.transfer.run(kAtlas);
}

std::vector<int> coloursAt(const IconStoreStage& stage, const IconTransfer::Places& places) {
    std::vector<int> colours;
    for (const auto& place : places)
        colours.push_back(place ? stage.colour(*place) : 0);
    return colours;
}

/// In both folders, one after the other.
std::vector<int> allColours(const IconStoreStage& stage) {
    std::vector<int> all = stage.colours(stage.permanent);
    for (const int colour : stage.colours(stage.pending))
        all.push_back(colour);
    return all;
}

const auto kRow = ElementsAre(1, 3, 4, 5, 6);

struct IconTransferTest : testing::Test {
    IconStoreStage stage;
    IconProgram program{stage};
    IconTransfer& transfer{program.transfer};

    IconTransferTest() { furnish(stage); }

    std::vector<MacPath> named(const std::vector<std::string>& names) const {
        std::vector<MacPath> paths;
        for (const std::string& name : names)
            paths.push_back(stage.permanent / name);
        return paths;
    }
};

} // namespace

TEST_F(IconTransferTest, DeletesMovesAndNumbersInTheOrderOfTheRow) {
    ASSERT_TRUE(transfer.begin(staged(program.store)));
    const LogRecorder log;
    const auto places = transfer.run(kAtlas);
    EXPECT_THAT(log.lines(), ElementsAre("  Deleted: icon_1.png", "  Re-indexed: icon_2 -> icon_1",
                                         "  Re-indexed: icon_3 -> icon_2", "  Re-indexed: icon_4 -> icon_3",
                                         "  Re-indexed: icon_6 -> icon_4"));
    EXPECT_THAT(coloursAt(stage, places), kRow);
    EXPECT_EQ(program.store.listIcons(kAtlas),
              named({"icon_0.png", "icon_1.png", "icon_2.png", "icon_3.png", "icon_4.png"}));
    EXPECT_THAT(stage.colours(stage.permanent), kRow);
    EXPECT_EQ(stage.colour(stage.permanent / "icon_4_thumb@2x.png"), 6);
    EXPECT_THAT(*stage.disk.list(stage.pending), ElementsAre());

    transfer.end();
    EXPECT_THAT(transfer.interrupted(), ElementsAre());
    EXPECT_THAT(transfer.run(kAtlas), ElementsAre());
}

TEST(IconTransfer, ARunThatIsStoppedAnywhereIsFinishedByTheNext) {
    for (const Times times : {Times::forGood, Times::once}) {
        failAtEveryOperation(times, furnish, beginAndRun, [&](IconStoreStage& stage) {
            // An icon that could not be moved is skipped, so that later ones may come before it on disk.
            std::vector<int> all = allColours(stage);
            if (times == Times::once)
                std::ranges::sort(all);
            EXPECT_THAT(all, testing::AnyOf(kRow, ElementsAre(1, 2, 3, 4, 5, 6)));

            IconProgram again(stage);
            if (again.transfer.interrupted().empty()) {
                EXPECT_EQ(all.size(), 6u) << "changed without a record";
                ASSERT_TRUE(again.transfer.begin(staged(again.store)));
            }
            for (int time = 1; time <= 2; ++time) {
                EXPECT_THAT(coloursAt(stage, again.transfer.run(kAtlas)), kRow);
                EXPECT_THAT(stage.colours(stage.permanent), testing::UnorderedElementsAre(1, 3, 4, 5, 6));
                EXPECT_EQ(again.store.listIcons(kAtlas).back(), stage.permanent / "icon_4.png");
            }
        });
    }
}

TEST(IconTransfer, WhereverARunIsStoppedTheSelectedIconStaysTheSame) {
    constexpr int kMarked = 1;
    constexpr int kOfATheme = 4;
    for (const int selected : {2, kMarked, kOfATheme}) {
        const auto furnishAndSelect = [&](IconStoreStage& stage) {
            for (int i = 0; i < 3; ++i)
                stage.putFile(stage.permanent / iconFileName(i), i + 1);
            stage.putFile(stage.pending / "icon_3.png", 4);
            IconProgram(stage).settings.setSelectedIcon(kAtlas, selected);
        };
        const auto run = [](IconProgram& program) {
            const MacPath permanent = program.store.iconCacheURL() / kAtlas;
            const MacPath pending = program.store.pendingIconsBaseURL() / kAtlas;
            if (program.transfer.begin(
                    {{kAtlas,
                      {permanent / "icon_0.png", permanent / "icon_2.png", pending / "icon_3.png"},
                      {kMarked}}}))
                program.transfer.run(kAtlas);
        };
        const auto expectTheSame = [&](IconStoreStage& stage) {
            const auto number = IconProgram(stage).settings.getSelectedIcon(kAtlas);
            const auto icons = stage.colours(stage.permanent);
            const bool isThere = std::ranges::find(icons, selected + 1) != icons.end();
            if (selected == kOfATheme)
                EXPECT_EQ(number, icons.size() + 1);
            else if (selected == kMarked && !isThere)
                EXPECT_EQ(number, std::nullopt);
            else
                EXPECT_EQ(icons.at(static_cast<std::size_t>(number.value_or(99))), selected + 1);
        };
        const auto abandon = [](IconProgram& program) { program.transfer.abandon(); };
        const auto abandonAgain = [&](IconStoreStage& stage) {
            IconProgram again(stage);
            again.transfer.abandon();
            expectTheSame(stage);
        };
        failAtEveryOperation(Times::forGood, furnishAndSelect, run, abandonAgain);
        failAtEveryOperation(Times::forGood, furnishAndSelect, run, [&](IconStoreStage& stage) {
            IconProgram again(stage);
            again.transfer.run(kAtlas);
            expectTheSame(stage);
        });
        failAtEveryOperation(
            Times::forGood,
            [&](IconStoreStage& stage) {
                furnishAndSelect(stage);
                IconProgram before(stage);
                run(before);
            },
            abandon, abandonAgain);
    }
}

TEST_F(IconTransferTest, ASecondRunRemembersTheSelectionFromBeforeTheFirst) {
    program.settings.setSelectedIcon(kAtlas, 2);
    beginAndRun(program);

    IconProgram again(stage);
    ASSERT_TRUE(again.transfer.begin({{kAtlas, again.store.listIcons(kAtlas), {0}}}));
    again.transfer.abandon();
    EXPECT_EQ(again.settings.getSelectedIcon(kAtlas), 1);
    EXPECT_EQ(stage.colour(stage.permanent / "icon_1.png"), 3);
}

TEST_F(IconTransferTest, FindsIconsThatWereCopiedElsewhereAndBackAndDeletesNoneOfThem) {
    ASSERT_TRUE(transfer.begin(staged(program.store)));
    // All copies first, or a file system that gives numbers out again would give them the same ones.
    for (const MacPath& folder : {stage.permanent, stage.pending})
        ASSERT_TRUE(stage.disk.copy(folder, MacPath(folder.string() + " copy")));
    for (const MacPath& folder : {stage.permanent, stage.pending}) {
        ASSERT_TRUE(stage.disk.remove(folder));
        ASSERT_TRUE(stage.disk.move(MacPath(folder.string() + " copy"), folder));
    }
    EXPECT_THAT(coloursAt(stage, transfer.run(kAtlas)), kRow);
    EXPECT_THAT(stage.colours(stage.permanent), ElementsAre(1, 2, 3, 4, 5, 6));
}

TEST_F(IconTransferTest, AnIconThatIsGoneIsNotTakenForTheOneUnderItsName) {
    ASSERT_TRUE(transfer.begin(staged(program.store)));
    ASSERT_TRUE(stage.disk.remove(stage.permanent / "icon_2.png"));
    EXPECT_THAT(coloursAt(stage, transfer.run(kAtlas)), ElementsAre(1, 0, 4, 5, 6));
    EXPECT_THAT(coloursAt(stage, transfer.run(kAtlas)), ElementsAre(1, 0, 4, 5, 6));
}

TEST_F(IconTransferTest, WhatFailsStaysAndAFailedDeletionKeepsTheNumbers) {
    ASSERT_TRUE(transfer.begin(staged(program.store)));
    bool isFirst = true;
    stage.mac.files.setRule([&](const FileOperation& operation) -> std::optional<int> {
        const bool isDeletion = operation.name == "remove" && operation.path == stage.permanent / "icon_1.png";
        const bool isTransfer = operation.name == "move" && operation.path == stage.permanent / "icon_4.png";
        return isDeletion || (isTransfer && std::exchange(isFirst, false)) ? std::optional(EACCES)
                                                                           : std::nullopt;
    });
    const LogRecorder log;
    const auto places = transfer.run(kAtlas);
    EXPECT_THAT(places, ElementsAre(stage.permanent / "icon_0.png", stage.permanent / "icon_2.png",
                                    stage.permanent / "icon_3.png", stage.pending / "icon_4.png",
                                    stage.permanent / "icon_6.png"));
    EXPECT_THAT(coloursAt(stage, places), kRow);
    EXPECT_TRUE(
        log.has("⚠️ WARNING: Failed to transfer pending icon at " + stage.pending.string() + "/icon_4.png"));
}

TEST_F(IconTransferTest, TakesNothingForLostWhenAFolderCannotBeRead) {
    ASSERT_TRUE(transfer.begin(staged(program.store)));
    for (const MacPath& folder : {stage.permanent, stage.pending}) {
        stage.mac.files.failOn("list", folder, EACCES);
        EXPECT_THAT(transfer.run(kAtlas), ElementsAre());
        EXPECT_FALSE(transfer.begin(staged(program.store)));
    }
    EXPECT_THAT(allColours(stage), ElementsAre(1, 2, 3, 4, 5, 6));
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
    const MacPath shown = stage.permanent / "icon_0.png";
    TransferRecord record;
    record.shown = {recorded(other), recorded(outside), recorded(shown)};
    record.marked = {recorded(other), recorded(outside), recorded(stage.pending / "icon_4.png"),
                     recorded(shown)};
    record.selected = recorded(outside);
    const TransferRecords records{{kAtlas, record}, {"../Themes", record}, {"a/b", record}, {"", record}};
    const MacPath file = stage.support / "PendingChanges/transfer.plist";
    const FileTree before = treeOf(stage.disk, stage.support);

    ASSERT_TRUE(stage.disk.create(file, *plist::serialize(encodeTransferRecords(records), plist::Format::xml)));
    EXPECT_THAT(transfer.interrupted(), ElementsAre(kAtlas));
    const LogRecorder log;
    EXPECT_THAT(transfer.run(kAtlas), ElementsAre(std::nullopt, std::nullopt, shown));
    EXPECT_EQ(log.count("Ignoring a recorded icon that is not one of com.example.atlas"), 5u);
    EXPECT_THAT(transfer.run("../Themes"), ElementsAre());
    transfer.abandon();
    transfer.end();
    EXPECT_THAT(differences(before, treeOf(stage.disk, stage.support)), ElementsAre());

    const std::vector<plist::Value> oddities{
        plist::Array{}, plist::Dictionary{{"applications", plist::Array{1}}},
        plist::Dictionary{{"applications", plist::Dictionary{{kAtlas, 3}}}},
        plist::Dictionary{
            {"applications", plist::Dictionary{{kAtlas, plist::Dictionary{{"shown", plist::Array{1, "x"}},
                                                                          {"marked", "y"},
                                                                          {"selected", 1},
                                                                          {"selectedBehind", -4}}}}}}};
    for (const plist::Value& odd : oddities) {
        ASSERT_TRUE(stage.disk.write(file, *plist::serialize(odd, plist::Format::binary)));
        for (const auto& place : transfer.run(kAtlas))
            EXPECT_EQ(place, std::nullopt);
        transfer.abandon();
    }
    transfer.end();
    EXPECT_THAT(differences(before, treeOf(stage.disk, stage.support)), ElementsAre());
}

} // namespace tavrik::test
