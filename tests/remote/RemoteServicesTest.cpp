#include "remote/RemoteServices.h"

#include "LoopbackServer.h"
#include "Signing.h"
#include "platform/practice/PracticeDefaults.h"
#include "support/SmallMac.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <memory>

namespace tavrik {

namespace {

using namespace std::chrono_literals;
using test::httpAnswer;
using test::payload;
using test::Signer;
using Stage = UpdateStatus::Stage;

std::string texts(int serial, const std::string& summary) {
    return payload("texts", serial, R"("texts":{"about.summary":")" + summary + R"("},"links":{})");
}

std::string updates(int serial, const std::string& version) {
    const std::string rest = R"(","notes":"New.","size":1000,"link":"https://tavrik.example/get"}])";
    return payload("updates", serial, R"("releases":[{"version":")" + version + rest);
}

/// The program's services on a small Mac, at their second start, over a server on this machine.
class Services : public testing::Test {
protected:
    Services() {
        set("UIStringsURL", server.address("/v1/texts"));
        set("UpdateFeedURL", server.address("/v1/updates"));
        set("NetworkStarts", 2);
        publish(kGood.sign(texts(5, "New.")), kGood.sign(updates(5, "2.0")));
    }

    /// As another program would, while this one does not run.
    void setBetweenStarts(std::string_view key, std::optional<plist::Value> value) {
        services.reset(); // what it was saving is saved by then
        ASSERT_TRUE(defaults.set(key, std::move(value)));
    }

    void set(std::string_view key, plist::Value value) { ASSERT_TRUE(defaults.set(key, std::move(value))); }

    void publish(const std::string& textsAnswer, const std::string& updatesAnswer,
                 const std::string& fields = "") {
        server.replies["/v1/texts"] = {httpAnswer("200 OK", textsAnswer, fields)};
        server.replies["/v1/updates"] = {httpAnswer("200 OK", updatesAnswer, fields)};
    }

    /// Starts the program anew, and waits until it has read everything.
    void start() {
        services.reset();
        RemoteServices::Options options{.version = "1.0", .keys = {kGood.key()}, .http = {}, .isBusy = {}};
        options.isBusy = [this] { return isBusy; };
        services = std::make_unique<RemoteServices>(RemoteServices::Ports{defaults, mac.mac.machine, mac.clock},
                                                    options);
        services->startUp();
        ASSERT_TRUE(loop.until([&] { return services->isReady(); }));
        settle();
    }

    /// As at a start of somebody who then allows the texts, and perhaps the updates.
    void startAllowed(bool updatesToo = true) {
        start();
        services->choose(true, updatesToo);
        settle();
    }

    void settle() {
        const auto isDone = [&](RemoteKind kind) { return !services->report(kind).isFetching; };
        ASSERT_TRUE(loop.until([&] { return isDone(RemoteKind::texts) && isDone(RemoteKind::updates); }));
    }

    void check() {
        services->checkForUpdates();
        settle();
    }

    /// Lets the hours go by, with the look at the schedule that each brings.
    void pass(int hours) {
        for (int hour = 0; hour < hours; ++hour) {
            mac.clock.sleep(1h);
            services->fetchDue();
            settle();
        }
    }

    std::string summary() const { return services->texts().text(InterfaceText::aboutSummary); }

    std::optional<RemoteFailure> textsFailure() const { return services->report(RemoteKind::texts).failure; }

    const Signer kGood{"current-9", 1};
    const std::string kBuiltIn = InterfaceTexts().text(InterfaceText::aboutSummary);
    test::EventLoop loop;
    test::LoopbackServer server;
    test::SmallMac mac;
    practice::PracticeDefaults defaults{mac.files};
    bool isBusy = false;
    std::unique_ptr<RemoteServices> services;
};

} // namespace

TEST_F(Services, AskNobodyBeforeThePersonWasAskedAndAllowedIt) {
    set("NetworkStarts", 0);
    set("UIStringsEnabled", true); // half of a choice, which a kill has left
    start();
    EXPECT_FALSE(services->choice().isQuestionDue());
    start();
    EXPECT_TRUE(services->choice().isQuestionDue());
    pass(48);
    EXPECT_EQ(server.connections, 0);

    services->choose(false, false);
    pass(48);
    start();
    EXPECT_FALSE(services->choice().isQuestionDue()) << "it is asked once";
    EXPECT_EQ(server.connections, 0);

    services->choose(true, false);
    settle();
    EXPECT_EQ(server.requests.size(), 1u);
    EXPECT_EQ(summary(), "New.");
    services->choose(false, false);
    EXPECT_EQ(summary(), kBuiltIn);
}

TEST_F(Services, SendThisRequestAndNoOther) {
    publish(kGood.sign(texts(5, "New.")), "", "Set-Cookie: you=1\r\nETag: \"five\"\r\n");
    startAllowed(false);
    const std::string host = server.address("").substr(7);
    const std::string request = "GET /v1/texts HTTP/1.1\r\nHost: " + host + "\r\nUser-Agent: Tavrik\r\n" +
                                "Accept-Encoding: identity\r\nConnection: close\r\n" +
                                "Date: Sat, 09 May 2026 06:00:00 GMT\r\nAuthorization: Tavrik-HMAC-SHA256 " +
                                R"(key="app-1", signature="sB7mK2EX3svZFitZjhiqsjCpzwqPKdNf2KYHu+5A5ao=")" +
                                "\r\n";
    EXPECT_EQ(server.requests, std::vector{request + "\r\n"});
    mac.clock.sleep(1min);
    setBetweenStarts("UIStringsCacheDate", std::nullopt);
    start();
    ASSERT_EQ(server.requests.size(), 2u);
    EXPECT_EQ(server.requests[1], request + "If-None-Match: \"five\"\r\n\r\n") << "no cookie comes back";
}

TEST_F(Services, AskEachServiceOnceADayAcrossStarts) {
    isBusy = true;
    startAllowed();
    EXPECT_EQ(server.connections, 0) << "not in the way of an apply";
    isBusy = false;
    services->fetchDue();
    settle();
    EXPECT_EQ(server.requests.size(), 2u);
    for (int start = 0; start < 3; ++start) {
        pass(7);
        this->start();
        EXPECT_EQ(summary(), "New.");
        EXPECT_TRUE(services->updates().isOffered) << "out of what was kept";
    }
    EXPECT_EQ(server.requests.size(), 2u);
    publish(kGood.sign(texts(6, "Newer.")), kGood.sign(updates(6, "2.1")));
    pass(3);
    EXPECT_EQ(server.requests.size(), 4u);
    EXPECT_EQ(summary(), "Newer.");

    setBetweenStarts("UIStringsCacheDate", Date{900'000'000});
    start();
    EXPECT_EQ(server.requests.size(), 5u) << "a date in the future is as good as none";
}

TEST_F(Services, BackOffAfterFailuresAndKeepWhatTheyHad) {
    startAllowed(false);
    server.replies["/v1/texts"] = {httpAnswer("500 Oops", "")};
    pass(24);
    EXPECT_EQ(server.requests.size(), 1u + 1);
    pass(2);
    start();
    EXPECT_EQ(server.requests.size(), 1u + 2)
        << "1 hour later; the next is due 2 hours after that, whatever is started in between";
    EXPECT_EQ(summary(), "New.");
    EXPECT_EQ(textsFailure(), RemoteFailure::refused);
    pass(1 + 4 + 8 + 16 + 24 + 24);
    EXPECT_EQ(server.requests.size(), 1u + 8);
}

TEST_F(Services, KeepWhatTheyHadWhereAnAnswerIsNotToBeUsed) {
    startAllowed();
    const std::pair<std::string, RemoteFailure> cases[] = {
        {kGood.sign(texts(4, "Old.")), RemoteFailure::notTrusted},
        {Signer("current-9", 7).sign(texts(6, "Evil.")), RemoteFailure::notTrusted},
        {kGood.sign(payload("texts", 6, R"("texts":[])")), RemoteFailure::notUnderstood},
        {std::string(300'000, ' '), RemoteFailure::tooLarge}};
    for (const auto& [answer, failure] : cases) {
        publish(answer, "");
        pass(24);
        EXPECT_EQ(textsFailure(), failure) << answer.substr(0, 300);
        EXPECT_EQ(summary(), "New.");
    }
    publish(kGood.sign(texts(5, "New.")), "");
    pass(24);
    EXPECT_EQ(textsFailure(), std::nullopt);
}

TEST_F(Services, BelieveNeitherTheirCacheNorAnExpiredAnswer) {
    startAllowed(false);
    services.reset();
    const auto kept = defaults.value("UIStringsCache");
    ASSERT_TRUE(kept);
    publish("", "");
    const auto bytes = [](const std::string& text) { return plist::Value(Bytes(text.begin(), text.end())); };
    for (const plist::Value& found :
         {bytes(texts(9, "Evil.")), bytes(kGood.sign(texts(4, "Old."))), plist::Value("text")}) {
        setBetweenStarts("UIStringsCache", found);
        start();
        EXPECT_EQ(summary(), kBuiltIn);
    }
    EXPECT_EQ(server.requests.size(), 2u) << "what cannot be used is asked for again, and then waited for";
    setBetweenStarts("UIStringsCache", kept);
    start();
    EXPECT_EQ(summary(), "New.");
    mac.clock.sleep(24h * 100);
    services->fetchDue();
    settle();
    EXPECT_EQ(summary(), kBuiltIn) << "the answer expired while the program ran";

    setBetweenStarts("UIStringsCache", std::nullopt);
    start();
    const std::string rest = R"("texts":{},"links":{})";
    publish(kGood.sign(payload("texts", 4, rest, "2026-05-01T00:00:00Z", "2027-05-01T00:00:00Z")), "");
    pass(24);
    EXPECT_EQ(textsFailure(), RemoteFailure::notTrusted) << "serials outlive the cache";
}

TEST_F(Services, TakeNotModifiedForAnAnswerThatIsStillInForce) {
    publish(kGood.sign(texts(5, "New.")), "", "ETag: \"five\"\r\n");
    startAllowed(false);
    server.replies["/v1/texts"] = {"HTTP/1.1 304 Not Modified\r\n\r\n"};
    pass(24);
    EXPECT_EQ(server.requests.size(), 2u);
    EXPECT_EQ(textsFailure(), std::nullopt);
    EXPECT_EQ(summary(), "New.");
    pass(23);
    EXPECT_EQ(server.requests.size(), 2u);

    set("UIStringsURL", server.address("/elsewhere"));
    pass(1);
    ASSERT_EQ(server.requests.size(), 3u);
    EXPECT_EQ(server.requests[2].find("If-None-Match"), std::string::npos) << "another server gave that tag";
}

TEST_F(Services, AskNobodyElse) {
    test::LoopbackServer other;
    server.replies["/v1/texts"] = {
        httpAnswer("302 Found", "", "Location: " + other.address("/v1/texts") + "\r\n")};
    startAllowed();
    EXPECT_EQ(other.connections, 0);
    EXPECT_EQ(textsFailure(), RemoteFailure::refused);
    set("UIStringsURL", "http://tavrik.example/v1/texts");
    pass(1);
    EXPECT_EQ(textsFailure(), RemoteFailure::address);
}

TEST_F(Services, CheckForUpdatesWhenAPersonAsksWithoutFurtherConsent) {
    start();
    check();
    EXPECT_EQ(services->updates().stage, Stage::found);
    EXPECT_TRUE(services->updates().isOffered);
    EXPECT_EQ(textOf(services->updates().finding.release->version), "2.0");
    pass(48);
    EXPECT_EQ(server.requests.size(), 1u) << "one wish is one request";
    start();
    EXPECT_EQ(services->updates().stage, Stage::unknown);
    services->choose(false, true);
    EXPECT_TRUE(services->updates().isOffered) << "allowed only now, and known already";
    settle();
    EXPECT_EQ(server.requests.size(), 2u) << "two days have gone by";

    publish("", kGood.sign(updates(6, "1.0")));
    check();
    EXPECT_EQ(services->updates().finding.verdict, UpdateVerdict::newest);
    server.close();
    check();
    EXPECT_EQ(services->updates().stage, Stage::failed);
    EXPECT_EQ(services->updates().failure, RemoteFailure::connection);
}

TEST_F(Services, EndACheckThatNobodyWaitsForAnyLonger) {
    start();
    services->checkForUpdates();
    services->dismissUpdate();
    settle();
    EXPECT_TRUE(server.requests.empty());
    EXPECT_EQ(services->updates().stage, Stage::unknown);
    services->choose(false, true);
    settle();
    services->checkForUpdates();
    services->dismissUpdate();
    EXPECT_TRUE(services->updates().isOffered) << "what was known before is not put off with the check";
    settle();
    EXPECT_EQ(server.requests.size(), 2u) << "allowed without anybody who waits";

    publish("", "");
    check();
    EXPECT_EQ(services->updates().stage, Stage::failed);
    publish("", kGood.sign(updates(6, "2.1")));
    pass(1);
    EXPECT_TRUE(services->updates().isOffered);
    publish("", "");
    pass(24);
    EXPECT_TRUE(services->updates().isOffered) << "nobody asked, so a failure takes nothing away";
}

TEST_F(Services, OfferAReleaseUntilItIsPutOffOrSkipped) {
    startAllowed();
    EXPECT_TRUE(services->updates().isOffered);
    services->dismissUpdate();
    pass(24);
    EXPECT_FALSE(services->updates().isOffered) << "not twice in one run";
    start();
    EXPECT_TRUE(services->updates().isOffered);
    services->skipVersion();
    settle();
    start();
    for (const bool isAsking : {false, true}) {
        if (isAsking)
            check();
        EXPECT_FALSE(services->updates().isOffered);
        EXPECT_EQ(services->updates().finding.verdict, UpdateVerdict::available) << "whoever looks is told";
    }
    publish("", kGood.sign(updates(6, "2.0.1")));
    pass(24);
    EXPECT_TRUE(services->updates().isOffered);
}

TEST_F(Services, SendNothingOnceTheNetworkIsSwitchedOffForGood) {
    startAllowed();
    server.replies["/v1/updates"] = {"", test::LoopbackServer::Afterwards::stayOpen};
    services->checkForUpdates();
    ASSERT_TRUE(loop.until([&] { return server.requests.size() == 3; }));
    services->setOffForGood(true);
    EXPECT_EQ(services->updates().failure, RemoteFailure::switchedOff) << "a check under way ends too";
    EXPECT_EQ(summary(), kBuiltIn);
    server.requests.clear();
    check();
    EXPECT_EQ(services->updates().failure, RemoteFailure::switchedOff);
    pass(48);
    start();
    check();
    pass(48);
    services->choose(false, false);
    services->setOffForGood(false);
    ASSERT_TRUE(loop.until([&] { return defaults.value(kNetworkDisabledKey) == plist::Value(false); }));
    set(kNetworkDisabledKey, "YES"); // by another program, while this one runs
    check();
    EXPECT_EQ(services->updates().failure, RemoteFailure::switchedOff);
    EXPECT_TRUE(server.requests.empty());
}

TEST_F(Services, SayWhenAChoiceCannotBeKept) {
    start();
    mac.files.failOn("create", {}, ENOSPC);
    services->choose(true, true);
    EXPECT_TRUE(loop.until([&] { return !services->isChoiceSaved(); }));
}

} // namespace tavrik
