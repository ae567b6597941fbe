#include "Browser.h"
#include "UiStage.h"
#include "remote/Endpoint.h"
#include "remote/NetworkConsent.h"

#include <QDesktopServices>
#include <QJsonArray>
#include <QTimer>

#include <sys/stat.h>

namespace tavrik::test {

using namespace testing;
using Stage = UpdateOffer::Stage;

/// Of this process, those that listen included.
int openSockets() {
    constexpr int kMost = 1024;
    int count = 0;
    for (int descriptor = 0; descriptor < kMost; ++descriptor) {
        struct stat status{};
        count += fstat(descriptor, &status) == 0 && S_ISSOCK(status.st_mode) ? 1 : 0;
    }
    return count;
}

class UpdatesTest : public UiStage {
protected:
    UpdatesTest() {
        for (const auto& [kind, key] : {std::pair(RemoteKind::texts, kTextsAddressKey),
                                        std::pair(RemoteKind::updates, kUpdatesAddressKey)})
            EXPECT_TRUE(mac.defaults.set(key, plist::Value(server.address(kind))));
        publish({release("1.10", "12")});
        server.say(
            RemoteKind::texts,
            {{QStringLiteral("texts"),
              QJsonObject{{QStringLiteral("about.summary"), QStringLiteral("Another look for your apps.")},
                          {QStringLiteral("updates.newest"), QStringLiteral("Without the placeholder.")}}},
             {QStringLiteral("links"),
              QJsonObject{{QStringLiteral("help"), QStringLiteral("https://www.tavrik.example/guide")},
                          {QStringLiteral("home"), QStringLiteral("https://elsewhere.example/")}}}});
    }

    static QJsonObject release(const char* version, const char* minimum, const char* maximum = "99") {
        return {{QStringLiteral("version"), QLatin1String(version)},
                {QStringLiteral("minimumSystem"), QLatin1String(minimum)},
                {QStringLiteral("maximumSystem"), QLatin1String(maximum)},
                {QStringLiteral("notes"), QStringLiteral("What is new.")},
                {QStringLiteral("size"), 24'300'000},
                {QStringLiteral("link"), QStringLiteral("https://downloads.tavrik.example/new.dmg")}};
    }

    void publish(const QJsonArray& releases) {
        server.say(RemoteKind::updates, {{QStringLiteral("releases"), releases}});
    }

    /// Until the checks of the start are over and what was chosen is known.
    void startWhole() {
        start();
        ASSERT_TRUE(waitFor([&] { return model().updates()->isKnown(); }));
    }

    bool isShown(const char* name) {
        return waitFor([&] { return find(QString::fromLatin1(name)) != nullptr; });
    }

    bool isGone(const char* name) {
        return waitFor([&] { return find(QString::fromLatin1(name)) == nullptr; });
    }

    bool clickOn(const char* name) {
        return waitFor([&] { return click(QString::fromLatin1(name)); });
    }

    UpdateOffer& offer() { return *model().updates()->offer(); }

    SampleServer server;
    Browser browser{QStringLiteral("https")};
};

TEST_F(UpdatesTest, AsksOnceAtTheSecondStartAndSendsNothingBefore) {
    isNetworkAsked = false;
    isWelcomed = false;
    const int before = openSockets();
    startWhole();
    ASSERT_TRUE(isShown("welcome-start"));
    startWhole();
    ASSERT_TRUE(isShown("welcome-start"));
    press(window(), Qt::Key_Return);
    settled(window());
    EXPECT_EQ(find(QStringLiteral("consent-no")), nullptr) << "not in one breath with the welcome";

    using Place = WindowModel::Place;
    for (const Place place : {Place::SystemApps, Place::Themes, Place::Fonts, Place::UserApps})
        model().goTo(place);
    model().openSettings();
    model().preferences()->setTab(PreferencesPage::Tab::Updates);
    settled(program->settingsWindow());
    program->settingsWindow()->close();
    program->managers().pendingChanges.setPendingFont("Small Caps");
    program->delegate().applyChanges();
    ASSERT_TRUE(waitFor([&] { return model().apply()->stage() == ApplyModel::Stage::Result; }, 60'000));
    EXPECT_EQ(openSockets(), before);

    startWhole();
    ASSERT_TRUE(isShown("consent-yes"));
    settled(window());
    startWhole();
    ASSERT_TRUE(isShown("consent-yes")) << "who quits has not answered";
    EXPECT_EQ(server.requests(), 0);
    EXPECT_EQ(openSockets(), before);

    press(window(), Qt::Key_Return);
    press(window(), Qt::Key_Space);
    settled(window());
    EXPECT_NE(find(QStringLiteral("consent-no")), nullptr) << "a key meant for the list answers nothing";
    server.keepSilent(true);
    press(window(), Qt::Key_Tab);
    press(window(), Qt::Key_Right);
    press(window(), Qt::Key_Return);
    EXPECT_TRUE(waitFor([&] { return server.requests() == 2; })) << "one for each service";
    EXPECT_EQ(openSockets(), before + 4) << "both ends of each";
    EXPECT_TRUE(waitFor([&] { return NetworkConsent(mac.defaults).read().isAsked; }));

    server.keepSilent(false);
    startWhole();
    EXPECT_TRUE(isShown("update-available"));
    startWhole();
    EXPECT_TRUE(isShown("update-available")) << "out of what is kept";
    EXPECT_EQ(find(QStringLiteral("consent-yes")), nullptr);
    EXPECT_EQ(server.requests(), 4) << "not again on the same day";
}

TEST_F(UpdatesTest, WaitsForTheQuestionsOfTheStart) {
    isNetworkAsked = false;
    startWhole();
    program->managers().pendingChanges.setPendingFont("Small Caps");
    program.reset();
    bool wasAsked = false;
    QTimer person;
    QObject::connect(&person, &QTimer::timeout, &person, [&] {
        if (!alerts.isShown())
            return;
        wasAsked = true;
        EXPECT_EQ(find(QStringLiteral("consent-no")), nullptr);
        alerts.answer(0);
    });
    person.start(300);
    startWhole();
    EXPECT_TRUE(wasAsked) << "whether to recover what was staged";
    EXPECT_TRUE(isShown("consent-no"));
}

TEST_F(UpdatesTest, TakesEveryNoForGood) {
    for (const bool isByKey : {false, true}) {
        isNetworkAsked = false;
        EXPECT_TRUE(NetworkConsent(mac.defaults).write({}));
        startWhole();
        startWhole();
        ASSERT_TRUE(isShown("consent-no"));
        if (isByKey)
            press(window(), Qt::Key_Escape);
        else
            click(QStringLiteral("consent-no"));
        EXPECT_TRUE(isGone("consent-no"));
        EXPECT_TRUE(waitFor([&] { return NetworkConsent(mac.defaults).read().isAsked; }));
        startWhole();
        settled(window());
        EXPECT_EQ(find(QStringLiteral("consent-no")), nullptr);
        EXPECT_EQ(server.requests(), 0);
    }
}

TEST_F(UpdatesTest, SaysWhatCameOfACheck) {
    struct Case {
        const char* what;
        QJsonArray releases;
        Stage stage;
        const char* button; ///< beside the main one
    };

    startWhole();
    for (const Case& each :
         {Case{"none", {}, Stage::Newest, nullptr},
          Case{"older", {release("1.1.9", "12")}, Stage::Newest, nullptr},
          Case{"newer", {release("1.10", "12")}, Stage::Available, "update-skip"},
          Case{"too new", {release("2.0", "98.1")}, Stage::Unfit, nullptr},
          Case{"too old", {release("2.0", "10", "11")}, Stage::Unfit, nullptr},
          Case{"one that is no release", {QStringLiteral("1.10")}, Stage::Failed, "update-again"}}) {
        publish(each.releases);
        const int before = server.requests();
        offer().check();
        ASSERT_TRUE(isShown("update-main")) << each.what;
        ASSERT_TRUE(waitFor([&] { return !model().updates()->isChecking(); })) << each.what;
        EXPECT_EQ(offer().stage(), each.stage) << each.what;
        EXPECT_EQ(server.requests(), before + 1) << each.what;
        for (const char* const button : {"update-skip", "update-again"}) {
            const bool isExpected = each.button && QLatin1String(each.button) == QLatin1String(button);
            EXPECT_EQ(find(QString::fromLatin1(button)) != nullptr, isExpected) << each.what << button;
        }
        press(window(), Qt::Key_Escape);
        EXPECT_TRUE(isGone("update-main"));
    }
    EXPECT_TRUE(browser.opened.isEmpty());
}

TEST_F(UpdatesTest, OpensTheDownloadInTheBrowserAndSkipsWhatIsNotWanted) {
    startWhole();
    model().updates()->setChecksForUpdates(true);
    ASSERT_TRUE(clickOn("update-available"));
    ASSERT_TRUE(isShown("update-skip"));
    press(window(), Qt::Key_Return);
    EXPECT_TRUE(isGone("update-main"));
    EXPECT_EQ(browser.opened, QStringList(QStringLiteral("https://downloads.tavrik.example/new.dmg")));
    EXPECT_TRUE(isGone("update-available")) << "put off until the next start";

    isNetworkAsked = false;
    startWhole();
    ASSERT_TRUE(clickOn("update-available"));
    ASSERT_TRUE(clickOn("update-skip"));
    EXPECT_TRUE(isGone("update-main"));
    startWhole();
    settled(window());
    EXPECT_EQ(find(QStringLiteral("update-available")), nullptr);

    offer().check();
    EXPECT_TRUE(isShown("update-skip")) << "who asks is told of it all the same";
}

TEST_F(UpdatesTest, StaysOffTheNetworkForGoodWhenToldSo) {
    startWhole();
    model().openSettings();
    model().preferences()->setTab(PreferencesPage::Tab::Updates);
    ASSERT_TRUE(clickOn("updates-off"));
    EXPECT_TRUE(waitFor([&] { return NetworkConsent(mac.defaults).read().isOffForGood; }));
    EXPECT_FALSE(click(QStringLiteral("updates-feed")));
    EXPECT_FALSE(click(QStringLiteral("updates-check")));
    offer().check();
    ASSERT_TRUE(isShown("update-settings"));
    EXPECT_EQ(offer().stage(), Stage::Off);
    EXPECT_EQ(server.requests(), 0);

    ASSERT_TRUE(click(QStringLiteral("update-settings")));
    ASSERT_TRUE(clickOn("updates-off"));
    ASSERT_TRUE(clickOn("updates-check"));
    EXPECT_TRUE(waitFor([&] { return server.requests() == 1 && !model().updates()->isChecking(); }));
    EXPECT_TRUE(waitFor([&] { return !NetworkConsent(mac.defaults).read().isOffForGood; }));
    EXPECT_FALSE(model().updates()->checksForUpdates()) << "a check of one's own allows no others";
}

TEST_F(UpdatesTest, WritesNothingBehindTheDeletionOfWhatIsKept) {
    const int before = openSockets();
    startWhole();
    LeavingPage& leaving = *model().leaving();
    leaving.refresh();
    ASSERT_TRUE(waitFor([&] { return leaving.stage() != LeavingPage::Stage::Unknown; }));
    leaving.takeBack();
    ASSERT_TRUE(waitFor([&] {
        return leaving.stage() == LeavingPage::Stage::TakenBack && !leaving.work()->isBusy() &&
               !model().isBlocked();
    }));
    server.keepSilent(true);
    model().updates()->setChecksForUpdates(true);
    ASSERT_TRUE(waitFor([&] { return server.requests() == 1; }));
    leaving.deleteAll();
    EXPECT_TRUE(waitFor([&] { return openSockets() == before; }));
    ASSERT_TRUE(waitFor([&] { return !leaving.work()->isBusy() && !model().isBlocked(); }));
    settled(window());
    EXPECT_EQ(server.requests(), 1) << "the window is free again, and asks nothing";
    program.reset();
    for (const char* const key : {"UpdateCheckEnabled", "UpdateFeedCacheDate", "NetworkAsked"})
        EXPECT_FALSE(mac.defaults.value(key)) << key;
}

TEST_F(UpdatesTest, ReplacesTextsAndLinksThatMayBeReplacedAndNoOthers) {
    startWhole();
    const auto summary = [&] { return model().words()->aboutSummary(); };
    const QString builtIn = summary();
    model().updates()->setFetchesTexts(true);
    EXPECT_TRUE(waitFor([&] { return summary() == QStringLiteral("Another look for your apps."); }));
    EXPECT_EQ(model().words()->text(InterfaceText::newestVersion),
              QStringLiteral("Tavrik %1 is the newest version."));
    model().words()->open(InterfaceWords::Page::Help);
    model().words()->open(InterfaceWords::Page::Home);
    EXPECT_EQ(browser.opened, QStringList({QStringLiteral("https://www.tavrik.example/guide"),
                                           QStringLiteral("https://tavrik.example/")}));
    model().updates()->setFetchesTexts(false);
    EXPECT_EQ(summary(), builtIn);
}

TEST_F(UpdatesTest, AsksNothingWhileAnApplyRuns) {
    startWhole();
    program->managers().progress.show(window(), 1);
    ASSERT_TRUE(waitFor([&] { return model().isBlocked(); }));
    model().updates()->setChecksForUpdates(true);
    model().updates()->setFetchesTexts(true);
    settled(window());
    EXPECT_EQ(server.requests(), 0);
    program->managers().progress.hide();
    EXPECT_TRUE(waitFor([&] { return server.requests() == 2; }));
}

} // namespace tavrik::test
