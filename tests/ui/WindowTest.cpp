#include "Browser.h"
#include "UiStage.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PropertyListFile.h"

#include <QTimer>

namespace tavrik::test {

class WindowTest : public UiStage {};

TEST_F(WindowTest, TellsAtTheFirstStartAloneWhatItDoes) {
    isWelcomed = false;
    start();
    ASSERT_TRUE(waitFor([&] { return find(QStringLiteral("welcome-start")) != nullptr; }));
    press(window(), Qt::Key_Return);
    EXPECT_TRUE(waitFor([&] { return find(QStringLiteral("welcome-start")) == nullptr; }));
    start();
    settled(window());
    EXPECT_EQ(find(QStringLiteral("welcome-start")), nullptr);
}

TEST_F(WindowTest, UndoesAndDiscardsByTheKeyboard) {
    start();
    PendingChangesManager& pending = program->managers().pendingChanges;
    pending.setPendingFont("Small Caps");
    pending.setPendingReset(true);
    press(window(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(pending.staged().pendingFont, "Small Caps");
    press(window(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(pending.staged().pendingReset);
    model().edits()->discard();
    EXPECT_FALSE(pending.hasPendingChanges());
    press(window(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(pending.staged().pendingReset);
    EXPECT_TRUE(mac.files.exists(pending.tempFileURL()));
}

TEST_F(WindowTest, EditsWhereTheFocusWasByTheMenu) {
    start();
    constexpr int kEdit = 2;
    const auto choose = [&](const QString& text) {
        if (!waitFor([] { return click(find(QStringLiteral("menu-titles"))->childItems().value(kEdit)); }))
            return false;
        for (QQuickItem* const line : findIn(window()->contentItem(), QStringLiteral("menu-lines"))
                                          ->property("contentItem")
                                          .value<QQuickItem*>()
                                          ->childItems()) {
            if (line->property("text").toString() == text)
                return click(line);
        }
        return false;
    };
    QQuickItem* const field = find(QStringLiteral("appSearch"));
    const auto shows = [&](const char* text) {
        return waitFor([&] { return field->property("text").toString() == QLatin1String(text); }, 1000);
    };
    press(window(), Qt::Key_F, Qt::ControlModifier);
    type(window(), QStringLiteral("notes"));
    EXPECT_TRUE(choose(QStringLiteral("Select All")));
    EXPECT_TRUE(choose(QStringLiteral("Cut")));
    EXPECT_TRUE(shows(""));
    EXPECT_TRUE(choose(QStringLiteral("Paste")));
    EXPECT_TRUE(choose(QStringLiteral("Paste")));
    EXPECT_TRUE(shows("notesnotes"));
}

TEST_F(WindowTest, ShowsThePlanAppliesAndTellsTheResult) {
    start();
    program->managers().pendingChanges.setPendingFont("Small Caps");
    const auto before = volume.launchpadItems();
    press(window(), Qt::Key_Return, Qt::ControlModifier);
    ASSERT_TRUE(waitFor([&] { return find(QStringLiteral("apply-go")) != nullptr; }));
    EXPECT_EQ(volume.launchpadItems(), before);
    EXPECT_TRUE(model().apply()->obstacles().isEmpty());
    EXPECT_FALSE(model().apply()->details().isEmpty());

    ASSERT_TRUE(click(QStringLiteral("apply-go")));
    ASSERT_TRUE(waitFor([&] { return find(QStringLiteral("result-done")) != nullptr; }, 60'000));
    EXPECT_TRUE(model().apply()->isClean()) << model().apply()->remarks().join(QLatin1Char('\n')).toStdString();
    EXPECT_NE(volume.launchpadItems(), before);
    press(window(), Qt::Key_Escape);
    EXPECT_TRUE(waitFor([&] { return model().apply()->stage() == ApplyModel::Stage::Idle; }));
    EXPECT_EQ(model().stagedCount(), 0);
}

TEST_F(WindowTest, ShowsThePlanAgainToWhoClosesItAndAsksAtOnce) {
    start();
    program->managers().pendingChanges.setPendingFont("Small Caps");
    for (int i = 0; i < 2; ++i) {
        press(window(), Qt::Key_Escape);
        press(window(), Qt::Key_Return, Qt::ControlModifier);
        ASSERT_TRUE(waitFor([&] { return find(QStringLiteral("apply-go")) != nullptr; }));
    }
    settled(window());
    EXPECT_NE(find(QStringLiteral("apply-go")), nullptr);
}

TEST_F(WindowTest, CallsBackWhoLooksElsewhereWhenSomethingLongEnds) {
    start();
    const auto lookElsewhere = [] {
        QWindow other;
        other.show();
    };
    const auto apply = [&] {
        program->managers().pendingChanges.setPendingReset(true);
        model().apply()->begin();
        ASSERT_TRUE(waitFor([&] { return model().apply()->stage() == ApplyModel::Stage::Plan; }));
        lookElsewhere();
        model().apply()->apply();
        ASSERT_TRUE(waitFor([&] { return model().apply()->stage() == ApplyModel::Stage::Result; }, 60'000));
        model().apply()->close();
    };
    apply();
    ASSERT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(messages.shown[0].title, "Your changes are applied");
    EXPECT_FALSE(messages.shown[0].text.empty());

    BackupsPage& backups = *model().backups();
    backups.refresh();
    ASSERT_TRUE(waitFor([&] { return backups.currentRow() >= 0; }));
    const auto restore = [&] {
        backups.restore();
        ASSERT_TRUE(waitFor([&] { return !backups.work()->isBusy(); }, 60'000));
    };
    restore();
    ASSERT_EQ(messages.shown.size(), 2U);
    EXPECT_EQ(messages.shown[1].title, "Your backup is restored");
    window()->requestActivate();
    restore();
    EXPECT_EQ(messages.shown.size(), 2U) << "the window tells it";
}

TEST_F(WindowTest, TellsFromTheStartOnWhatMacOSRefusesAndOpensItsSettings) {
    ASSERT_TRUE(practice::writePropertyList(mac.files, practice::kRefusedPaths,
                                            plist::Array{plist::Value("/Applications")}));
    start();
    ASSERT_TRUE(waitFor([&] { return find(QStringLiteral("privacy-settings")) != nullptr; }));
    const Browser system(QStringLiteral("x-apple.systempreferences"));
    ASSERT_TRUE(click(QStringLiteral("privacy-settings")));

    program->managers().pendingChanges.setPendingFont("Small Caps");
    model().apply()->begin();
    ASSERT_TRUE(waitFor([&] { return find(QStringLiteral("remark-action")) != nullptr; }));
    ASSERT_EQ(model().apply()->obstacles().size(), 1);
    EXPECT_TRUE(model().apply()->obstacles().first().contains(QStringLiteral("> Full Disk Access")));
    EXPECT_FALSE(find(QStringLiteral("apply-go"))->isEnabled());
    ASSERT_TRUE(click(QStringLiteral("remark-action")));
    EXPECT_EQ(system.opened, QStringList(2, QStringLiteral("x-apple.systempreferences:com.apple.preference."
                                                           "security?Privacy_AllFiles")));
    ASSERT_TRUE(click(QStringLiteral("apply-cancel")));

    ASSERT_TRUE(mac.files.remove(practice::kRefusedPaths));
    ASSERT_TRUE(click(QStringLiteral("privacy-again")));
    EXPECT_TRUE(waitFor([&] { return model().privacy()->text().isEmpty(); }));
}

TEST_F(WindowTest, AsksBeforeItClosesWithStagedChanges) {
    start();
    program->managers().pendingChanges.setPendingFont("Small Caps");
    const auto answer = [&](int button) {
        QTimer::singleShot(0, window(), [&, button] {
            EXPECT_EQ(alerts.title(), QStringLiteral("You have unsaved changes"));
            alerts.answer(button);
        });
        window()->close();
    };
    answer(0);
    EXPECT_TRUE(window()->isVisible());
    EXPECT_TRUE(program->managers().pendingChanges.hasPendingChanges());
    answer(1);
    EXPECT_TRUE(waitFor([&] { return !window()->isVisible(); }));
    EXPECT_FALSE(program->managers().pendingChanges.hasPendingChanges());
}

} // namespace tavrik::test
