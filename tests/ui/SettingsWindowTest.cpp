#include "UiStage.h"
#include "platform/FileManager.h"
#include "platform/Sqlite.h"
#include "platform/UserDefaults.h"

#include <gmock/gmock.h>

namespace tavrik::test {

using namespace testing;
using Tab = PreferencesPage::Tab;

constexpr const char* kMail = "com.apple.mail";

class SettingsWindowTest : public UiStage {
protected:
    void open(Tab tab = Tab::Backups) {
        if (!program)
            start();
        model().openSettings();
        model().preferences()->setTab(tab);
        ASSERT_TRUE(waitFor([&] { return tab != Tab::Backups || backups().isLoaded(); }));
    }

    BackupsPage& backups() { return *model().backups(); }

    void waitUntilDone(const PageWork& work) {
        ASSERT_TRUE(waitFor([&] { return !work.isBusy(); }, 60'000));
    }

    /// As soon as it can be clicked.
    void press(const char* name) {
        ASSERT_TRUE(waitFor([&] { return click(QString::fromLatin1(name)); })) << name;
    }

    void answer(const char* button) {
        press(button);
        ASSERT_TRUE(waitFor([&] { return find(QString::fromLatin1(button)) == nullptr; }));
    }

    bool isShown(const char* name) {
        return waitFor([&] { return find(QString::fromLatin1(name)) != nullptr; });
    }

    void backUp() {
        const int rows = backups().backups()->rowCount();
        press("backup-now");
        ASSERT_TRUE(waitFor([&] { return backups().backups()->rowCount() > rows; }));
    }

    /// With the triggers off, as the Dock's own edits are not made here.
    void changeLaunchpad(const std::string& statement) {
        auto database = sqlite::Connection::open(volume.launchpadDatabase(), sqlite::OpenMode::readWrite);
        ASSERT_TRUE(database && database->execute(("UPDATE dbinfo SET value='1' "
                                                   "WHERE key='ignore_items_update_triggers'; " +
                                                   statement)
                                                      .c_str()));
    }

    /// Restyles an application and all names.
    void restyle() {
        QImage picture(1024, 1024, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::magenta);
        Managers& managers = program->managers();
        managers.pendingChanges.addIcons({{kMail, *managers.iconStore.savePendingIcon(picture, kMail)}});
        managers.pendingChanges.setPendingFont("Small Caps");
        program->delegate().applyChanges();
        ASSERT_TRUE(waitFor([&] { return model().apply()->stage() == ApplyModel::Stage::Result; }, 60'000));
        EXPECT_TRUE(model().apply()->isClean()) << model().apply()->remarks().join(u'\n').toStdString();
        model().apply()->close();
    }
};

TEST_F(SettingsWindowTest, OpensAtTheTabThatIsAskedFor) {
    start();
    model().preferences()->setTab(Tab::Themes);
    ASSERT_TRUE(mac.defaults.set(kOpenBackupExplorer, plist::Value(true)));
    model().openSettings();
    EXPECT_TRUE(isShown("backup-list"));
    EXPECT_FALSE(mac.defaults.value(kOpenBackupExplorer));

    for (const auto& [request, shown] : {std::pair(WindowModel::Request::Health, "health-first-check"),
                                         {WindowModel::Request::Leave, "leave-headline"}}) {
        model().ask(request);
        EXPECT_TRUE(isShown(shown));
    }
    program->settingsWindow()->close();
    model().openSettings();
    EXPECT_TRUE(isShown("leave-headline")) << "the request for the backups was met already";
    waitUntilDone(*model().leaving()->work());
}

TEST_F(SettingsWindowTest, TakesBackupsAndTellsWhatHasChangedSince) {
    open();
    backUp();
    backUp();
    const auto& rows = backups().backups()->rows();
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_TRUE(rows[0].isOriginal);
    EXPECT_EQ(backups().currentRow(), 1) << "the new one is chosen";

    changeLaunchpad(
        "UPDATE items SET ordering = 99, parent_id = (SELECT max(rowid) FROM items WHERE type=3 AND "
        "parent_id=1) WHERE rowid = (SELECT item_id FROM apps WHERE bundleid='com.apple.mail')");
    find(QStringLiteral("backup-list"))->forceActiveFocus();
    Stagehand::press(program->settingsWindow(), Qt::Key_Up);
    EXPECT_EQ(backups().currentRow(), 0);
    ASSERT_TRUE(waitFor([&] { return !backups().detail()->isReading(); }));
    EXPECT_EQ(backups().detail()->sinceLines(),
              QStringList(QStringLiteral("Mail moved from page 1 to page 3.")));
    const QVariantList pages = backups().detail()->pages();
    ASSERT_EQ(pages.size(), 3);
    const QVariantMap first = pages[0].toMap()[QStringLiteral("items")].toList()[0].toMap();
    EXPECT_TRUE(mac.files.exists(MacPath(first[QStringLiteral("path")].toString().toStdString())));

    press("backup-verify");
    waitUntilDone(*backups().work());
    EXPECT_FALSE(backups().work()->isRemarkBad());
    ASSERT_TRUE(mac.files.write(*program->managers().backups.find(rows[0].id), Bytes(100)));
    press("backup-verify");
    waitUntilDone(*backups().work());
    EXPECT_TRUE(backups().work()->isRemarkBad());

    press("keep-less");
    EXPECT_TRUE(waitFor([&] { return program->managers().settings.getBackupRetentionCount() == 29; }));
}

TEST_F(SettingsWindowTest, RestoresWhenThePersonConfirmsIt) {
    open();
    backUp();
    const auto before = volume.launchpadItems();
    const auto tiles = volume.pinnedTiles();
    restyle();
    const auto restyled = volume.launchpadItems();
    ASSERT_NE(restyled, before);
    ASSERT_TRUE(waitFor([&] { return backups().backups()->rowCount() == 2; })) << "the apply took one";
    backups().choose(0);
    ASSERT_TRUE(waitFor([&] { return !backups().detail()->isReading(); }));

    press("backup-restore");
    ASSERT_TRUE(isShown("confirm-go"));
    Stagehand::press(program->settingsWindow(), Qt::Key_Return);
    ASSERT_TRUE(waitFor([&] { return find(QStringLiteral("confirm-go")) == nullptr; }));
    EXPECT_EQ(volume.launchpadItems(), restyled) << "Return is no yes";

    program->managers().pendingChanges.setPendingReset(true);
    press("backup-restore");
    press("confirm-go");
    EXPECT_TRUE(model().isBlocked());
    waitUntilDone(*backups().work());
    EXPECT_FALSE(backups().work()->isRemarkBad()) << backups().work()->remark().toStdString();
    EXPECT_EQ(volume.launchpadItems(), before);
    EXPECT_EQ(volume.pinnedTiles(), tiles);
    EXPECT_FALSE(program->managers().pendingChanges.hasPendingChanges());
    EXPECT_TRUE(waitFor([&] { return backups().backups()->rowCount() == 3 && !model().isBlocked(); }));
}

TEST_F(SettingsWindowTest, SaysInPlaceWhatFailsAndChangesNothing) {
    open();
    backUp();
    backUp();
    const std::string original = backups().backups()->rows()[0].id;
    ASSERT_TRUE(mac.files.remove(*program->managers().backups.find(original)));
    backups().choose(0);
    ASSERT_TRUE(waitFor([&] { return !backups().detail()->isReading(); }));
    EXPECT_FALSE(backups().detail()->problem().isEmpty());
    EXPECT_FALSE(find(QStringLiteral("backup-restore"))->isEnabled());

    const auto before = volume.launchpadItems();
    ASSERT_TRUE(mac.files.remove(program->managers().launchpadDatabase.launchpadDatabasePath()));
    press("backup-now");
    waitUntilDone(*backups().work());
    EXPECT_TRUE(backups().work()->isRemarkBad());
    EXPECT_EQ(find(QStringLiteral("work-line"))->property("text").toString(), backups().work()->remark());

    backups().choose(1);
    ASSERT_TRUE(waitFor([&] { return !backups().detail()->isReading(); }));
    press("backup-restore");
    answer("confirm-go");
    waitUntilDone(*backups().work());
    EXPECT_EQ(volume.launchpadItems(), before) << "a missing database needs no copy";
}

TEST_F(SettingsWindowTest, FindsDamageAndMendsIt) {
    open(Tab::Health);
    press("health-first-check");
    waitUntilDone(*model().health()->work());
    EXPECT_TRUE(model().health()->isGood());

    changeLaunchpad("");
    press("health-first-check");
    waitUntilDone(*model().health()->work());
    FindingsModel& findings = *model().health()->findings();
    const auto condition = [&] {
        return findings.index(0).data(findings.roleNames().key("condition")).value<FindingsModel::Condition>();
    };
    ASSERT_EQ(findings.count(), 1);
    EXPECT_EQ(condition(), FindingsModel::Condition::Mendable);
    press("health-mend");
    answer("confirm-go");
    waitUntilDone(*model().health()->work());
    EXPECT_EQ(condition(), FindingsModel::Condition::Mended);
    EXPECT_EQ(find(QStringLiteral("health-mend")), nullptr);
    press("health-check");
    waitUntilDone(*model().health()->work());
    EXPECT_EQ(findings.count(), 0);
}

TEST_F(SettingsWindowTest, TakesEverythingBackAndThenLeavesNothing) {
    start();
    const auto before = volume.launchpadItems();
    restyle();
    open(Tab::Leave);
    LeavingPage& page = *model().leaving();
    ASSERT_TRUE(isShown("leave-take-back"));
    EXPECT_EQ(find(QStringLiteral("leave-delete")), nullptr);
    EXPECT_EQ(page.figures()[0].toMap()[QStringLiteral("figure")], QStringLiteral("1"));
    press("leave-take-back");
    answer("confirm-go");
    ASSERT_TRUE(isShown("leave-delete"));
    EXPECT_EQ(page.stage(), LeavingPage::Stage::TakenBack) << page.traces().join(u'\n').toStdString();
    EXPECT_EQ(volume.launchpadItems(), before);
    waitUntilDone(*page.work());

    program->managers().pendingChanges.setPendingFont("Small Caps");
    const MacPath folder = program->managers().settings.appSupportURL();
    press("leave-delete");
    answer("confirm-cancel");
    EXPECT_TRUE(mac.files.exists(folder));
    press("leave-delete");
    press("confirm-go");
    EXPECT_TRUE(waitFor([&] { return !window()->isVisible(); })) << "the program ends";
    EXPECT_FALSE(mac.files.exists(folder));
}

TEST_F(SettingsWindowTest, KeepsHowThemesAndIconsAreShown) {
    open(Tab::Themes);
    press("themes-grid");
    press("themes-names");
    const ThemePreviewSettingsManager kept(mac.defaults);
    EXPECT_TRUE(
        waitFor([&] { return kept.previewStyle() == ThemePreviewStyle::grid && kept.showsFileNames(); }));

    restyle();
    model().preferences()->setTab(Tab::Icons);
    ASSERT_TRUE(isShown("cut-0"));
    press("cut-0");
    EXPECT_TRUE(waitFor([&] { return program->managers().iconSettings.squircleSetting(kMail, 0); }));
}

} // namespace tavrik::test
