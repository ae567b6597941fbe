#include "ApplyStage.h"
#include "platform/Sqlite.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace tavrik::test {

namespace {

class ApplyRefusal : public ApplyStage {
protected:
    ApplyRefusal() {
        add(kAtlas, 1);
        program->apps.loadApplications(); // which records the hidden rows that it sees
    }

    /// Nothing of the user's is otherwise, and what was staged still is.
    void expectUntouched(ApplyResult::End end, const std::string& sentence) {
        const auto before = treeOf(mac.files, practice::kHome);
        const auto rows = volume.launchpadItems();
        const ApplyResult result = apply();
        EXPECT_EQ(result.end, end);
        ASSERT_FALSE(result.reasons.empty());
        EXPECT_THAT(result.reasons.front(), HasSubstr(sentence));
        EXPECT_THAT(differences(before, treeOf(mac.files, practice::kHome)),
                    testing::Each(testing::AnyOf(HasSubstr("pendingChanges.plist"), HasSubstr("AppSettings"))))
            << "but for their time stamps";
        EXPECT_EQ(volume.launchpadItems(), rows);
        EXPECT_TRUE(pending().hasPendingChanges());
        EXPECT_FALSE(program->progress.isShown());
    }

    void change(const char* sql) {
        auto database = sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite);
        ASSERT_TRUE(database && database->execute(sql));
    }
};

} // namespace

TEST_F(ApplyRefusal, AsksBeforeItClosesApplications) {
    workspace.running = {{kCinder, "Cinder"}};
    EXPECT_EQ(apply().end, ApplyResult::End::applied) << "that one is not to be restyled";
    EXPECT_THAT(alerts.asked, IsEmpty());

    add(kAtlas, 2);
    add(kInkwell, 3);
    workspace.running = {{kAtlas, "Atlas"}, {kInkwell, "Inkwell"}};
    alerts.answers = {1};
    const ApplyResult cancelled = apply();
    EXPECT_EQ(cancelled.end, ApplyResult::End::cancelled);
    ASSERT_EQ(alerts.asked.size(), 1U);
    EXPECT_EQ(alerts.asked.front().title, "Close Apps");
    EXPECT_EQ(alerts.asked.front().text,
              "In order to proceed, the following apps must be closed:\n\nAtlas\nInkwell");
    EXPECT_THAT(alerts.asked.front().buttons, ElementsAre("Close All", "Cancel"));
    EXPECT_TRUE(log.has("User cancelled applying changes due to running apps"));
    EXPECT_EQ(workspace.running.size(), 2U);
    EXPECT_EQ(lookOf(kAtlas).icon, 1);

    alerts.answers = {0};
    expectApplied();
    EXPECT_THAT(workspace.running, IsEmpty());
    EXPECT_EQ(lookOf(kAtlas).icon, 2);
}

TEST_F(ApplyRefusal, GivesUpWhenAnApplicationDoesNotEnd) {
    add(kInkwell, 2);
    workspace.running = {{kAtlas, "Atlas"}, {kInkwell, "Inkwell"}};
    workspace.stubborn = {kInkwell};
    expectUntouched(ApplyResult::End::cancelled, "Inkwell");
    ASSERT_EQ(alerts.asked.size(), 2U);
    EXPECT_EQ(alerts.asked.back().title, "Unable to close apps");
    EXPECT_EQ(alerts.asked.back().text, "The following apps could not be closed:\n\n• Inkwell\n\nPlease close "
                                        "them manually and try again.");
    EXPECT_TRUE(log.has("User cancelled after apps failed to close"));
}

TEST_F(ApplyRefusal, LeavesTheFinderOpen) {
    workspace.running = {{"com.apple.finder", "Finder"}};
    add("com.apple.finder", 4);
    apply();
    EXPECT_THAT(alerts.asked, IsEmpty());
}

TEST_F(ApplyRefusal, ChangesNothingWhenSomethingStandsInTheWay) {
    {
        auto other = sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite);
        ASSERT_TRUE(other && other->execute("BEGIN IMMEDIATE"));
        expectUntouched(ApplyResult::End::refused, "locked by another program");
    }
    change("ALTER TABLE dbinfo RENAME COLUMN value TO worth");
    expectUntouched(ApplyResult::End::refused, "it lacks dbinfo.value");
    change("ALTER TABLE dbinfo RENAME COLUMN worth TO value");

    const MacPath dock = dockPreferencesPath(practice::kHome);
    const auto preferences = *mac.files.read(dock);
    ASSERT_TRUE(mac.files.write(dock, bytesOf("cut")));
    expectUntouched(ApplyResult::End::refused, "The Dock's preferences cannot be read");
    ASSERT_TRUE(mac.files.write(dock, preferences));

    const MacPath wrappers = wrapperFolder(practice::kHome);
    ASSERT_TRUE(mac.files.createFolder(practice::kHome / "Elsewhere"));
    ASSERT_TRUE(mac.files.createFolder(wrappers.parent()));
    ASSERT_TRUE(mac.files.createLink(wrappers, (practice::kHome / "Elsewhere").string()));
    expectUntouched(ApplyResult::End::refused, "is a link");
    ASSERT_TRUE(mac.files.remove(wrappers));

    files.failOn("create", {}, ENOSPC);
    expectUntouched(ApplyResult::End::refused, "recovery file");
    files.failOn("create", MacPath(mac.volume.temporaryFolder()) / "launchpad_temp.db", ENOSPC);
    files.failNothing();
    expectApplied();
}

TEST_F(ApplyRefusal, ChangesNothingWithoutABackup) {
    files.setRule([&](const FileOperation& operation) -> std::optional<int> {
        const bool isBackup = operation.path.isInside(program->backups.backupsBaseURL());
        return isBackup && operation.name != "list" ? std::optional(ENOSPC) : std::nullopt;
    });
    expectUntouched(ApplyResult::End::refused, "No backup could be taken");
    files.failNothing();
    expectApplied();
}

TEST_F(ApplyRefusal, SaysThatNothingIsStaged) {
    expectApplied();
    EXPECT_EQ(apply().end, ApplyResult::End::nothingStaged);
    EXPECT_FALSE(log.mentions("Creating backup"));
}

} // namespace tavrik::test
