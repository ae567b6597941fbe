#include "platform/Clock.h"
#include "remote/RemoteService.h"
#include "remote/UpdateFeed.h"
#include "support/TemporaryFolder.h"

#include <QByteArray>
#include <QFile>
#include <QProcess>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace tavrik::test {

namespace {

using namespace testing;

struct Told {
    int status;
    std::string words;
};

/// Who signs, with keys made by the tool.
class PublishTool : public Test {
protected:
    PublishTool() { keys = run({"keys", at("keys")}).words; }

    std::string at(const std::string& name) const { return (folder.path() / name).string(); }

    Told run(const std::vector<std::string>& arguments) const {
        QStringList words;
        for (const std::string& argument : arguments)
            words.append(QString::fromStdString(argument));
        QProcess tool;
        tool.setProcessChannelMode(QProcess::MergedChannels);
        tool.start(QStringLiteral(TAVRIK_PUBLISH_TOOL), words);
        EXPECT_TRUE(tool.waitForFinished(60'000));
        return {tool.exitCode(), tool.readAll().toStdString()};
    }

    Told sign(const std::string& kind, const std::string& content, std::vector<std::string> more = {}) {
        write("in", content);
        std::vector<std::string> arguments{kind, "--reader", TAVRIK_ANSWER_READER, "--key",
                                           at("keys/current.pem")};
        arguments.insert(arguments.end(), more.begin(), more.end());
        arguments.insert(arguments.end(), {at("in"), at("out")});
        return run(arguments);
    }

    void write(const std::string& name, const std::string& content) const {
        QFile file(QString::fromStdString(at(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content.data(), static_cast<qint64>(content.size()));
    }

    QByteArray read(const std::string& name) const {
        QFile file(QString::fromStdString(at(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// The public half of a key, as the tool printed it.
    std::string publicKey(const std::string& name) const {
        return keys.substr(keys.find(name + ": ") + name.size() + 2, 64);
    }

    TrustedKey trusted(const std::string& name) const {
        TrustedKey key;
        const auto line = keys.find("\"k-", keys.find(name + ": "));
        key.id = keys.substr(line + 1, keys.find('"', line + 1) - line - 1);
        std::ranges::copy(QByteArray::fromHex(QByteArray::fromStdString(publicKey(name))), key.bytes.begin());
        return key;
    }

    RemoteResult<TrustedAnswer> readByProgram(const QByteArray& answer, RemoteKind kind) const {
        return trustedAnswer(bytesOf({answer.data(), static_cast<std::size_t>(answer.size())}), kind,
                             {trusted("current")}, {}, SystemClock().now());
    }

    TemporaryFolder folder;
    std::string keys;
};

const std::string kTexts = R"({"texts": {"about.summary": "Über \"Äpfel\" 🍏"}, "links": {}})";
const std::string kFeed = R"({"releases": [{"version": "1.10", "minimumSystem": "12", "notes": "A\nB",
    "size": 24300000, "link": "https://downloads.tavrik.example/a.dmg"}]})";

} // namespace

TEST_F(PublishTool, MakesKeysThatNobodyElseReadsAndNeverOverwritesThem) {
    const QByteArray current = read("keys/current.pem");
    for (const char* const name : {"keys/current.pem", "keys/spare.pem"})
        EXPECT_EQ(QFile::permissions(QString::fromStdString(at(name))) &
                      (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
                  QFile::Permissions())
            << name;
    EXPECT_NE(publicKey("current"), publicKey("spare"));

    ASSERT_TRUE(QFile::remove(QString::fromStdString(at("keys/spare.pem"))));
    EXPECT_EQ(run({"keys", at("keys")}).status, 1);
    EXPECT_EQ(read("keys/current.pem"), current);

    QFile::setPermissions(QString::fromStdString(at("keys/current.pem")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);
    EXPECT_THAT(sign("texts", kTexts).words, HasSubstr("can be read by others"));
}

TEST_F(PublishTool, SignsWhatTheProgramTakes) {
    ASSERT_EQ(sign("texts", kTexts).status, 0);
    const QByteArray texts = read("out");
    const auto answer = readByProgram(texts, RemoteKind::texts);
    ASSERT_TRUE(answer) << answer.problem().detail;
    EXPECT_EQ(answer->payload[QStringLiteral("texts")][QStringLiteral("about.summary")].toString(),
              QString::fromUtf8("Über \"Äpfel\" 🍏"));
    EXPECT_FALSE(readByProgram(texts, RemoteKind::updates));
    QByteArray other = texts;
    other.back() = ' ';
    EXPECT_FALSE(readByProgram(other, RemoteKind::texts));

    ASSERT_TRUE(QFile::remove(QString::fromStdString(at("out"))));
    ASSERT_EQ(sign("feed", kFeed).status, 0);
    const auto feed = readByProgram(read("out"), RemoteKind::updates);
    ASSERT_TRUE(feed) << feed.problem().detail;
    const auto releases = updateFeed(feed->payload);
    ASSERT_TRUE(releases && releases->size() == 1);
    EXPECT_EQ(releases->front().notes, "A\nB");

    for (const auto& [key, status] : {std::pair("current", 0), std::pair("spare", 1)})
        EXPECT_EQ(
            run({"verify", "--reader", TAVRIK_ANSWER_READER, "--public", publicKey(key), "feed", at("out")})
                .status,
            status)
            << key;
}

TEST_F(PublishTool, RefusesWithTheReasonAndLeavesWhatStandsThere) {
    ASSERT_EQ(sign("texts", kTexts, {"--serial", "7"}).status, 0);
    const QByteArray before = read("out");

    struct Case {
        const char* kind;
        std::string content;
        const char* reason;
        std::vector<std::string> more = {};
    };

    const auto link = [](const std::string& to) {
        return "{\"texts\": {}, \"links\": {\"help\": \"" + to + "\"}}";
    };
    for (const Case& each : {
             Case{"texts", "[]", "no object"},
             Case{"texts", "{", "no JSON"},
             Case{"texts", R"({"texts": {"about.summary": "a", "about.summary": "b"}})", "stands twice"},
             Case{"texts", R"({"texts": {}})", "\"links\" is missing"},
             Case{"texts", R"({"texts": {"quit.question": "Yes?"}, "links": {}})", "no text that may be"},
             Case{"texts", R"({"texts": {"updates.newest": "Without."}, "links": {}})", "placeholders"},
             Case{"texts", R"({"texts": {"about.summary": 5}, "links": {}})", "no plain text"},
             Case{"texts", link("javascript:alert(1)"), "leads nowhere"},
             Case{"texts", link("https://elsewhere.example/"), "leads nowhere"},
             Case{"texts", R"({"texts": {}, "links": {}, "more": {}})", "nothing that the program knows"},
             Case{"texts", R"({"texts": {}, "links": {}, "serial": 9})", "written by this tool"},
             Case{"texts", kTexts, "has the serial 7", {"--serial", "7"}},
             Case{"texts", kTexts, "one day", {"--days", "0"}},
             Case{"texts", kTexts, "one day", {"--days", "99999999"}},
             Case{"texts", std::string(100'000, '['), "no JSON"},
             Case{"texts", R"({"texts": {"about.summary": "\ud800"}, "links": {}})", "half a character"},
             Case{"feed", R"({"releases": [{"version": "new", "notes": "", "size": 1, "link": ""}]})",
                  "Release 1"},
             Case{"feed", R"({"releases": [{"version": NaN}]})", "no number"},
             Case{"feed", "{\"releases\": \"" + std::string(300'000, 'a') + "\"}", "/in is larger than"},
         }) {
        const Told told = sign(each.kind, each.content, each.more);
        EXPECT_EQ(told.status, 1) << each.content.substr(0, 100);
        EXPECT_THAT(told.words, HasSubstr(each.reason)) << each.content.substr(0, 100);
        EXPECT_EQ(read("out"), before) << each.content.substr(0, 100);
    }
    write("out", "somebody's own");
    EXPECT_EQ(sign("texts", kTexts).status, 1);
    EXPECT_EQ(read("out"), "somebody's own");
}

} // namespace tavrik::test
