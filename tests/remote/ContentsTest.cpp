#include "remote/Endpoint.h"
#include "remote/FetchSchedule.h"
#include "remote/InterfaceTexts.h"
#include "remote/StrictJson.h"
#include "remote/UpdateCheck.h"

#include <QUrl>

#include <gtest/gtest.h>

#include <string>

namespace tavrik {

namespace {

QJsonObject object(const std::string& text) {
    return json::object(bytesOf(text)).value_or(QJsonObject());
}

ProgramVersion version(std::string_view text) {
    return programVersion(text).value_or(ProgramVersion{{999999}});
}

/// A release with these fields in the place of good ones.
std::string release(const std::string& version, const std::string& more = "",
                    const std::string& link = "https://tavrik.example/get") {
    return R"({"version":")" + version + R"(","notes":"New.\nBetter.","size":1000,"link":")" + link + "\"" +
           more + "}";
}

std::optional<std::vector<Release>> feed(const std::string& releases) {
    return updateFeed(object(R"({"releases":[)" + releases + "]}"));
}

} // namespace

TEST(InterfaceTexts, TakesPlainTextsWithTheSamePlaceholders) {
    const ReplaceableText entry{
        .text = InterfaceText::newestVersion, .key = "k", .builtIn = "%1 of %2", .longest = 20};
    for (const char* const text : {"%1 of %2", "%2: %1 (100 %)", "caf\u00e9 %1 %2 \U0001F389", "%1 & %2"})
        EXPECT_TRUE(mayReplace(entry, text)) << text;
    for (const char* const text : {"", "  ", "%1", "%1 %2 %1", "%1 %2 %3", "%1 %L2", "%1 %2 <b>x</b>",
                                   "%1 %2\nx", "%1 %2\x01", "%1 %2\x7F", "%1 %2 \u202Exe", "%1 %2\u200B",
                                   "%1 %2\u2028", "%1 %2\uE000", "%1 %2 \xC3", "%1 %2 is much too long"})
        EXPECT_FALSE(mayReplace(entry, text)) << text;
}

TEST(InterfaceTexts, TakesHttpsLinksToAllowedHosts) {
    for (const char* const link :
         {"https://tavrik.example", "https://www.tavrik.example/a?b=c#d", "https://TAVRIK.example/"})
        EXPECT_TRUE(isAllowedLink(link)) << link;
    for (const char* const link :
         {"", "http://tavrik.example/", "javascript:alert(1)", "https://tavrik.example.evil.example/",
          "https://evil.example/tavrik.example", "https://tavrik.example@evil.example/",
          "https://a@tavrik.example/", "https://tavrik.example:8443/", "//tavrik.example/",
          "https:tavrik.example", "file:///Applications", "https://tavrik.example/\u202E",
          "https://tavrik.example/a b", "https://xn--tavrk-q4a.example/"})
        EXPECT_FALSE(isAllowedLink(link)) << link;
    EXPECT_FALSE(isAllowedLink("https://tavrik.example/" + std::string(500, 'a')));
}

TEST(InterfaceTexts, ReplaceWhatMayBeReplacedAndNothingElse) {
    const InterfaceTexts builtIn;
    const InterfaceTexts texts(object(
        R"({"texts":{"about.summary":"New.","updates.newest":"No number","welcome.summary":7,"alert.delete":"Go on"},)"
        R"("links":{"help":"https://www.tavrik.example/handbook","home":"javascript:void"}})"));
    EXPECT_EQ(texts.text(InterfaceText::aboutSummary), "New.");
    EXPECT_EQ(texts.link(InterfaceLink::help), "https://www.tavrik.example/handbook");
    for (const InterfaceText kept : {InterfaceText::newestVersion, InterfaceText::welcomeSummary})
        EXPECT_EQ(texts.text(kept), builtIn.text(kept));
    EXPECT_EQ(texts.link(InterfaceLink::home), builtIn.link(InterfaceLink::home));
}

TEST(InterfaceTexts, AreAllWithinTheirOwnLimits) {
    for (const ReplaceableText& entry : replaceableTexts())
        EXPECT_TRUE(mayReplace(entry, entry.builtIn)) << entry.key;
    for (const ReplaceableLink& entry : replaceableLinks())
        EXPECT_TRUE(isAllowedLink(entry.builtIn)) << entry.key;
}

TEST(ProgramVersion, ComparesAsNumbers) {
    EXPECT_LT(version("1.9"), version("1.10"));
    EXPECT_LT(version("1.10"), version("2"));
    EXPECT_LT(version("1.0"), version("1.0.0.1"));
    EXPECT_EQ(version("1"), version("1.0.0"));
    for (const char* const text :
         {"", ".", "1.", ".1", "1..2", "1.0b", "-1", "+1", " 1", "1.2.3.4.5", "1234567"})
        EXPECT_EQ(programVersion(text), std::nullopt) << text;
    for (const char* const text : {"1.0", "1.10.2", "1.0.0.1"})
        EXPECT_EQ(textOf(version(text)), text);
}

TEST(UpdateFeed, IsTakenAsAWholeOrNotAtAll) {
    ASSERT_TRUE(feed(release("1.0", R"(,"minimumSystem":"12","maximumSystem":"15","colour":"red")") + "," +
                     release("2.0")));
    EXPECT_EQ(feed("")->size(), 0u);
    const std::string bad[] = {
        release("1.0b"),
        release("1.0", R"(,"minimumSystem":12)"),
        release("1.0", R"(,"maximumSystem":"15.1.2.3")"),
        release("1.0", "", "http://tavrik.example/get"),
        release("1.0", "", "https://evil.example/get"),
        R"({"version":"1.0","notes":"<b>New</b>","size":1,"link":"https://tavrik.example/"})",
        R"({"version":"1.0","notes":"New","size":-1,"link":"https://tavrik.example/"})",
        R"({"version":"1.0","notes":"New","size":1})",
        R"("1.0")"};
    for (const std::string& entry : bad)
        EXPECT_FALSE(feed(release("0.9") + "," + entry)) << entry;
    EXPECT_FALSE(updateFeed(object(R"({"releases":{}})")));
}

TEST(UpdateCheck, OffersTheHighestReleaseThatRunsHere) {
    const auto all = feed(release("1.2") + "," + release("1.10", R"(,"minimumSystem":"13.1")") + "," +
                          release("1.9", R"(,"minimumSystem":"12.0","maximumSystem":"13")") + "," +
                          release("3.0", R"(,"minimumSystem":"15","maximumSystem":"15")"));
    ASSERT_TRUE(all);
    using enum UpdateVerdict;

    const struct {
        const char* current;
        SystemVersion system;
        UpdateVerdict verdict;
        const char* found;
    } cases[] = {{"1.0", {13, 1, 0}, available, "1.10"},   {"1.0", {13, 0, 9}, available, "1.9"},
                 {"1.9", {13, 0, 9}, systemTooOld, "3.0"}, {"1.10", {14, 0, 0}, systemTooOld, "3.0"},
                 {"1.0", {15, 7, 2}, available, "3.0"},    {"1.10", {16, 0, 0}, systemTooNew, "3.0"},
                 {"3.0", {15, 0, 0}, newest, nullptr},     {"9", {15, 0, 0}, newest, nullptr}};

    for (const auto& [current, system, verdict, found] : cases) {
        const auto finding = findUpdate(*all, version(current), system);
        EXPECT_EQ(finding.verdict, verdict) << current << " on " << system.major;
        EXPECT_EQ(finding.release ? textOf(finding.release->version) : "", found ? found : "") << current;
    }
}

TEST(FetchSchedule, WaitsADayAfterAnAnswerAndEverLongerAfterFailures) {
    const Date now{800'000'000};
    const auto ago = [now](double hours) { return Date{now.sinceReference - hours * 3600}; };
    const std::pair<FetchHistory, bool> cases[] = {
        {{}, true},
        {{.answered = ago(23.99), .failed = {}}, false},
        {{.answered = ago(24), .failed = {}}, true},
        {{.answered = ago(-1), .failed = {}}, true},
        {{.answered = ago(30), .failed = ago(0.99), .failures = 1}, false},
        {{.answered = ago(30), .failed = ago(1), .failures = 1}, true},
        {{.answered = {}, .failed = ago(3.99), .failures = 3}, false},
        {{.answered = {}, .failed = ago(4), .failures = 3}, true},
        {{.answered = {}, .failed = ago(23.99), .failures = 100}, false},
        {{.answered = {}, .failed = ago(24), .failures = 100}, true},
        {{.answered = {}, .failed = ago(-1), .failures = 3}, true}};
    for (const auto& [history, isDue] : cases)
        EXPECT_EQ(isFetchDue(history, now), isDue) << now.sinceReference << " " << history.failures;
}

TEST(Endpoint, IsHttpsOrThisMachine) {
    for (const char* const address : {"https://a.example/v1", "https://a.example:8443", "http://127.0.0.1:80/x",
                                      "http://[::1]/", "http://localhost/"})
        EXPECT_TRUE(acceptableAddress(address)) << address;
    for (const char* const address :
         {"", "a.example", "http://a.example/", "http://127.0.0.1.a.example/", "http://localhost.a.example/",
          "https://user@a.example/", "https://a.example/#x", "ftp://127.0.0.1/", "https:///x", "https://a b/"})
        EXPECT_FALSE(acceptableAddress(address)) << address;
}

} // namespace tavrik
