#include "app/AppDelegate.h"

#include "app/SharedCoordinators.h"
#include "changes/apply/ApplyStage.h"
#include "platform/MainQueue.h"
#include "platform/UserDefaults.h"
#include "support/WaitFor.h"

namespace tavrik::test {

namespace {

using Action = AppDelegate::MenuAction;
using testing::ElementsAre;
using testing::IsEmpty;

/// A window, and what was done to it.
class ListedWindow : public ManagedWindow {
public:
    ListedWindow(std::string name, std::vector<std::string>& done) : m_name(std::move(name)), m_done(done) {}

    void orderOut() override { m_done.push_back("order out " + m_name); }

    void close() override { m_done.push_back("close " + m_name); }

    QObject* object() override { return nullptr; }

private:
    const std::string m_name;
    std::vector<std::string>& m_done;
};

class AppDelegateTest : public ApplyStage, protected ApplicationFace {
protected:
    void SetUp() override { startAgain(); }

    void TearDown() override {
        waitUntilIdle();
        delegate.reset();
        coordinators.reset();
    }

    /// The whole program anew.
    void startAgain() {
        delegate.reset();
        coordinators.reset();
        start();
        coordinators.emplace(*program);
        delegate.emplace(*program, *coordinators, static_cast<ApplicationFace&>(*this));
    }

    void disableAutomaticTabbing() override { done.emplace_back("disable tabbing"); }

    std::vector<ManagedWindow*> openWindows() override { return {&main}; }

    void openSettings() override { done.emplace_back("open settings"); }

    void terminate() override { done.emplace_back("terminate"); }

    /// The checks of the start are over; nothing of them is looked at.
    void launch() {
        delegate->applicationWillFinishLaunching();
        delegate->applicationDidFinishLaunching();
        waitUntilIdle();
        done.clear();
    }

    bool comes(const std::function<bool()>& moment) {
        return waitFor([&] {
            QCoreApplication::processEvents();
            return moment();
        });
    }

    /// Works of the background queue run one after the other, so the end of a refresh is the end of all.
    void waitUntilIdle() {
        const auto refreshes = log.count("=== MANUAL REFRESH COMPLETE ===\n");
        delegate->manualRefresh();
        EXPECT_TRUE(comes([&] { return log.count("=== MANUAL REFRESH COMPLETE ===\n") > refreshes; }));
        QCoreApplication::processEvents();
    }

    std::optional<bool> mayQuit;
    std::vector<std::string> done;
    ListedWindow main{"main", done};
    ListedWindow settings{"settings", done};
    std::optional<SharedCoordinators> coordinators;
    std::optional<AppDelegate> delegate;
};

} // namespace

TEST_F(AppDelegateTest, LetsNothingBeStagedBeforeWhatWasStagedIsSettled) {
    add(kAtlas, 1);
    const StagedChanges staged = pending().staged();
    startAgain();
    delegate->applicationWillFinishLaunching();
    delegate->applicationDidFinishLaunching();
    EXPECT_THAT(done, ElementsAre("disable tabbing"));
    EXPECT_TRUE(delegate->isStarting());
    EXPECT_TRUE(comes([&] { return !delegate->isStarting(); }));
    EXPECT_EQ(alerts.asked.size(), 1U);
    EXPECT_EQ(pending().staged(), staged);
    EXPECT_TRUE(own.files.exists(wrapperFolder(practice::kHome)));
}

TEST_F(AppDelegateTest, QuitsAtOnceWhereNothingWouldBeLost) {
    launch();
    delegate->windowDidBecomeMain(settings);
    EXPECT_TRUE(delegate->applicationShouldTerminate());
    EXPECT_THAT(done, testing::UnorderedElementsAre("order out main", "close main", "order out settings",
                                                    "close settings"));
    EXPECT_THAT(alerts.asked, IsEmpty());
}

TEST_F(AppDelegateTest, AsksOnceBeforeStagedChangesAreDropped) {
    launch();
    delegate->windowDidBecomeMain(settings);
    int discarded = 0;
    const auto observed =
        program->notificationCenter.observe(std::string(kReloadApplicationsAfterDiscard), [&] { ++discarded; });
    alerts.meanwhile = [this] {
        EXPECT_FALSE(delegate->applicationShouldTerminate()) << "the question on the screen answers it";
        EXPECT_FALSE(delegate->windowShouldClose(main));
    };
    for (const bool closes : {false, true}) {
        for (const bool abandons : {false, true}) {
            if (!pending().hasPendingChanges())
                add(kAtlas, 1);
            discarded = 0;
            done.clear();
            alerts.asked.clear();
            alerts.answers = {abandons ? 1U : 0U};
            EXPECT_FALSE(closes ? delegate->windowShouldClose(main) : delegate->applicationShouldTerminate());
            ASSERT_EQ(alerts.asked.size(), 1U);
            EXPECT_EQ(pending().hasPendingChanges(), !abandons);
            EXPECT_EQ(discarded, abandons ? 1 : 0);
            EXPECT_EQ(done.empty() ? "" : done.back(), !abandons ? "" : closes ? "close main" : "terminate");
            if (!closes && abandons)
                delegate->windowDidBecomeMain(main);
        }
    }
    const Alert& alert = alerts.asked.front();
    EXPECT_EQ(alert.title, "You have unsaved changes");
    EXPECT_EQ(alert.text, "Do you want to abandon your changes or return to the app?");
    EXPECT_THAT(alert.buttons, ElementsAre("Return", "Abandon"));
    EXPECT_EQ(alert.style, AlertStyle::warning);
    EXPECT_EQ(alert.buttonWithoutAnswer(), 0U);

    add(kAtlas, 2);
    alerts.asked.clear();
    EXPECT_TRUE(delegate->windowShouldClose(settings));
    EXPECT_THAT(alerts.asked, IsEmpty()) << "the main window guards them";
}

TEST_F(AppDelegateTest, AnApplyGoesToItsEndBeforeTheProgramDoes) {
    launch();
    add(kAtlas, 1);
    std::vector<ApplyResult> results;
    delegate->setApplyObserver([&](const ApplyResult& result) { results.push_back(result); });
    delegate->applyChanges();
    delegate->applyChanges();
    alerts.answers = {1};
    EXPECT_FALSE(delegate->applicationShouldTerminate());
    EXPECT_TRUE(pending().hasPendingChanges()) << "it is what the apply works on";
    EXPECT_THAT(done, IsEmpty());
    EXPECT_TRUE(comes([&] { return !done.empty() && done.back() == "terminate"; }));
    ASSERT_EQ(results.size(), 1U);
    EXPECT_EQ(results[0].end, ApplyResult::End::applied);
    EXPECT_EQ(lookOf(kAtlas), restyled(kAtlas, 1));
    EXPECT_EQ(std::ranges::count(done, "terminate"), 1);
}

TEST_F(AppDelegateTest, WaitsForTheChecksOfTheStartAndAsksNoMoreOfThem) {
    ASSERT_TRUE(own.files.createFolder(wrapperFolder(practice::kHome) / "Gone.app"));
    ASSERT_TRUE(own.files.createLink(wrapperFolder(practice::kHome) / "Gone.app/Contents", "/nowhere"));
    files.setRule([this](const FileOperation& operation) -> std::optional<int> {
        if (operation.name == "list" && operation.path.name() == "Themes")
            MainQueue::sync([this] { mayQuit = delegate->windowShouldClose(main); });
        return std::nullopt;
    });
    delegate->applicationWillFinishLaunching();
    delegate->applicationDidFinishLaunching();
    EXPECT_TRUE(comes([&] { return !done.empty() && done.back() == "terminate"; }));
    EXPECT_EQ(mayQuit, false);
    EXPECT_THAT(alerts.asked, IsEmpty());
}

TEST_F(AppDelegateTest, OpensTheBackupsOnceTheQuestionIsGone) {
    ASSERT_TRUE(program->backups.createBackup());
    auto database = sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite);
    ASSERT_TRUE(database->execute("UPDATE items SET parent_id = 1 WHERE type = 4"));
    delegate->applicationWillFinishLaunching();
    delegate->applicationDidFinishLaunching();
    EXPECT_TRUE(comes([&] { return done.back() == "open settings"; }));
    EXPECT_EQ(whole.defaults.value(kOpenBackupExplorer), plist::Value(true));
}

TEST_F(AppDelegateTest, TheMenuFollowsWhatIsStagedAndWhatBlocks) {
    launch();
    const auto enabled = [this] {
        std::string items;
        for (const auto& [name, action] : {std::pair("quit ", Action::quit),
                                           {"apply ", Action::applyChanges},
                                           {"refresh ", Action::manualRefresh},
                                           {"settings ", Action::showPreferences},
                                           {"other", Action::other}})
            items += delegate->validateMenuItem(action) ? name : "";
        return items;
    };
    int changes = 0;
    delegate->setStateObserver([&] { ++changes; });
    EXPECT_EQ(enabled(), "quit refresh settings other");
    add(kAtlas, 1);
    EXPECT_EQ(enabled(), "quit apply refresh settings other");
    EXPECT_EQ(changes, 1);
    program->progress.show(nullptr, 1);
    EXPECT_EQ(enabled(), "quit ");
    delegate->showPreferences();
    EXPECT_THAT(done, IsEmpty());
    program->progress.hide();
    EXPECT_TRUE(comes([&] { return !delegate->isBlocked(); }));
    delegate->showPreferences();
    EXPECT_THAT(done, ElementsAre("open settings"));
    EXPECT_EQ(changes, 3);
}

} // namespace tavrik::test
