#include "changes/EditHistory.h"

#include "ChangesStage.h"
#include "changes/ReloadNotifications.h"

#include <functional>
#include <random>

namespace tavrik::test {

class EditHistoryTest : public ChangesStage {
protected:
    /// What the next start would find.
    StagedChanges recovered() {
        Program other(small.mac);
        other.changes.recover();
        return other.changes.staged();
    }

    EditHistory history{program->changes, program->notifications};
};

TEST_F(EditHistoryTest, GoesBackAndForthAlongEveryStepAndTheRecoveryFileFollows) {
    add(1);
    add(2);
    ASSERT_TRUE(apply());
    program->notifications.post(kReloadApplicationsAfterApply);
    ASSERT_FALSE(history.canUndo());

    const std::vector<std::pair<EditHistory::Kind, std::function<void()>>> steps = {
        {EditHistory::Kind::icons, [&] { add(3); }},
        {EditHistory::Kind::icons, [&] { changes().selectIcon(kAtlas, 0); }},
        {EditHistory::Kind::icons, [&] { changes().removeIcon(kAtlas, 2); }}, // the pending one
        {EditHistory::Kind::icons, [&] { changes().removeIcon(kAtlas, 0); }}, // a permanent one
        {EditHistory::Kind::themes, [&] { changes().hideThemeIcon("aaaabbbbccccdddd", "com.x.png"); }},
        {EditHistory::Kind::themes, [&] { changes().deleteTheme("aaaabbbbccccdddd"); }},
        {EditHistory::Kind::titles, [&] { changes().setPendingFont("Small Caps"); }},
        {EditHistory::Kind::titles, [&] { changes().setPendingReset(true); }},
        {EditHistory::Kind::several, [&] { history.discard(); }},
    };
    std::vector<StagedChanges> states{changes().staged()};
    std::vector<Row> rows{row()};
    for (const auto& [kind, step] : steps) {
        step();
        EXPECT_EQ(history.undoKind(), kind);
        states.push_back(changes().staged());
        rows.push_back(row());
    }
    for (std::size_t at = steps.size(); at-- > 0;) {
        ASSERT_TRUE(history.undo());
        EXPECT_EQ(changes().staged(), states[at]) << at;
        EXPECT_EQ(row(), rows[at]) << at;
    }
    EXPECT_FALSE(history.undo());
    for (std::size_t at = 1; at < states.size(); ++at) {
        ASSERT_TRUE(history.redo());
        EXPECT_EQ(row(), rows[at]) << at;
        EXPECT_EQ(changes().staged(), states[at]) << at;
    }
    EXPECT_FALSE(history.redo());
    ASSERT_TRUE(history.undo());
    EXPECT_EQ(recovered(), states[states.size() - 2]);
}

TEST_F(EditHistoryTest, ANewStepEndsWhatCouldBeMadeAgain) {
    add(1);
    add(2);
    ASSERT_TRUE(history.undo());
    add(3);
    EXPECT_FALSE(history.canRedo());
    EXPECT_EQ(row().shown, (Numbers{1, 3}));
    ASSERT_TRUE(history.undo() && history.undo());
    EXPECT_EQ(row().shown, Numbers());
    EXPECT_FALSE(files.exists(changes().tempFileURL()));
}

TEST_F(EditHistoryTest, RemovedPicturesStayUntilItEnds) {
    add(1);
    add(2);
    ASSERT_TRUE(changes().removeIcon(kAtlas, 0));
    EXPECT_EQ(onDisk(), (Numbers{1, 2}));
    history.end();
    EXPECT_EQ(onDisk(), Numbers{2});
    EXPECT_EQ(row().shown, Numbers{2});
    changes().clearAllPendingChanges();
    program->notifications.post(kReloadApplicationsAfterDiscard);
    EXPECT_FALSE(history.canUndo());
}

TEST_F(EditHistoryTest, AKilledHistoryLeavesWhatWasStagedAndNothingElse) {
    add(1);
    add(2);
    ASSERT_TRUE(changes().removeIcon(kAtlas, 0));
    ASSERT_TRUE(recover());
    EXPECT_EQ(row().shown, Numbers{2});
    EXPECT_EQ(onDisk(), Numbers{2});
}

TEST_F(EditHistoryTest, ADiskThatDoesNotTellLeavesTheStepWhereItWas) {
    add(1);
    changes().setPendingFont("Small Caps");
    files.setRule([](const FileOperation& operation) -> std::optional<int> {
        return operation.name == "attributes" ? std::optional(EIO) : std::nullopt;
    });
    EXPECT_FALSE(history.undo());
    EXPECT_EQ(changes().staged().pendingFont, "Small Caps");
    files.failNothing();
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(row().shown, Numbers{1});
}

} // namespace tavrik::test
