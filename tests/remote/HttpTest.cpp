#include "LoopbackServer.h"
#include "remote/HttpAnswerReader.h"
#include "remote/HttpFetch.h"

#include <gtest/gtest.h>

#include <optional>

namespace tavrik {

namespace {

using namespace std::chrono_literals;
using test::httpAnswer;
using test::LoopbackServer;
using enum RemoteFailure;

constexpr std::size_t kLimit = 20'000;

/// The body, or the failure, of an answer that comes in pieces of this size.
std::string read(const std::string& answer, std::size_t piece) {
    HttpAnswerReader reader(kLimit);
    auto state = HttpAnswerReader::State::incomplete;
    for (std::size_t at = 0; at < answer.size() && state == HttpAnswerReader::State::incomplete; at += piece)
        state = reader.take(bytesOf(std::string_view(answer).substr(at, piece)));
    if (state == HttpAnswerReader::State::incomplete)
        return "incomplete";
    return state == HttpAnswerReader::State::failed ? std::string(nameOf(reader.problem().failure))
                                                    : std::string(textOf(reader.answer().body));
}

std::string chunked(const std::string& chunks) {
    return "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n" + chunks;
}

class HttpFetching : public testing::Test {
protected:
    /// "200 body", or the name of the failure.
    std::string get(const std::string& address, std::chrono::milliseconds timeLimit = 10s) {
        std::optional<std::string> outcome;
        const HttpFetch fetch({.url = QUrl(QString::fromStdString(address)), .headers = {}, .proxy = {}},
                              {.timeLimit = timeLimit, .sizeLimit = kLimit, .authorities = authorities},
                              [&](const RemoteResult<HttpAnswer>& answer) {
                                  EXPECT_FALSE(outcome) << "called twice";
                                  outcome = answer ? std::to_string(answer->status) + " " +
                                                         std::string(textOf(answer->body))
                                                   : std::string(nameOf(answer.problem().failure));
                              });
        EXPECT_FALSE(outcome) << "called before it is made";
        EXPECT_TRUE(loop.until([&] { return outcome.has_value(); }));
        return outcome.value_or("nothing");
    }

    test::EventLoop loop;
    LoopbackServer server;
    QList<QSslCertificate> authorities;
};

} // namespace

TEST(HttpAnswerReader, ReadsAnAnswerWhateverPiecesItComesIn) {
    const std::pair<std::string, std::string> cases[] = {
        {httpAnswer("200 OK", "body"), "body"},
        {httpAnswer("200 OK", "", "Set-Cookie: a=b\r\nContent-Encoding: identity\r\n"), ""},
        {httpAnswer("200 OK", "body") + "more", "body"},
        {"HTTP/1.0 200\r\ncontent-length:\t4 \r\n\r\nbody", "body"},
        {"HTTP/1.1 103 Early Hints\r\nLink: x\r\n\r\n" + httpAnswer("200 OK", "body"), "body"},
        {"HTTP/1.1 304 Not Modified\r\nContent-Length: 4\r\n\r\n", ""},
        {chunked("4\r\nbody\r\n0\r\n\r\n"), "body"},
        {chunked("2;x=y\r\nbo\r\n0002\r\ndy\r\n0\r\nTrailer: x\r\n\r\n"), "body"},
        {chunked("4\r\nbody\r\n"), "incomplete"},
        {"HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nbody", "incomplete"},
        {chunked("x\r\n"), "refused"},
        {chunked("4\r\nbodyxx"), "refused"},
        {chunked(std::string(300, '0')), "refused"},
        {chunked("ffffff\r\n"), "too large"},
        {chunked("123456789abcdef\r\n"), "too large"},
        {chunked("0000000000000004\r\nbody"), "refused"},
        {"HTTP/1.1 200 OK\r\n\r\nbody", "refused"},
        {"HTTP/1.1 200 OK\r\nContent-Length: 4\r\nContent-Length: 5\r\n\r\nbody", "refused"},
        {"HTTP/1.1 200 OK\r\nContent-Length: 4\r\nTransfer-Encoding: chunked\r\n\r\nbody", "refused"},
        {"HTTP/1.1 200 OK\r\nContent-Length: -4\r\n\r\nbody", "refused"},
        {"HTTP/1.1 200 OK\r\nTransfer-Encoding: gzip, chunked\r\n\r\n", "refused"},
        {httpAnswer("200 OK", "body", "Content-Encoding: gzip\r\n"), "refused"},
        {httpAnswer("200 OK", "body", "Folded: x\r\n y\r\n"), "refused"},
        {httpAnswer("302 Found", "", "Location: /elsewhere\r\n"), "refused"},
        {"HTTP/2 200 OK\r\n\r\n", "refused"},
        {"\r\n\r\n", "refused"},
        {httpAnswer("200 OK", std::string(kLimit, 'x')), "too large"},
        {"HTTP/1.1 200 OK\r\nContent-Length: 20001\r\n\r\n", "too large"},
        {"HTTP/1.1 200 OK\r\nContent-Length: 1000000000\r\n\r\n", "too large"},
        {"HTTP/1.1 200 OK\r\nX: " + std::string(kLimit, 'x'), "too large"},
        {chunked("4\r\nbody\r\n0\r\n" + std::string(kLimit, '\n')), "refused"}};
    for (const auto& [answer, expected] : cases) {
        for (const std::size_t piece : {std::size_t{1}, std::size_t{7}, answer.size()})
            EXPECT_EQ(read(answer, piece), expected) << answer.substr(0, 200) << " by " << piece;
    }
}

TEST(HttpAnswerReader, KeepsAnEntityTagThatMayBeRepeated) {
    for (const char* const tag : {"\"a-1\"", "W/\"a\"", "\"\""})
        EXPECT_TRUE(isEntityTag(tag)) << tag;
    for (const char* const tag : {"", "a", "\"", "\"a\"b\"", "\"a b\"", "\"a\rX: y\""})
        EXPECT_FALSE(isEntityTag(tag)) << tag;
}

TEST_F(HttpFetching, HandsOnWhatComesAndSaysWhyNothingDoes) {
    using enum LoopbackServer::Afterwards;
    const std::string head = "HTTP/1.1 200 OK\r\nContent-Length: 10\r\n";
    server.replies = {{"/good", {httpAnswer("200 OK", "body"), stayOpen}},
                      {"/error", {httpAnswer("500 Oops", "body")}},
                      {"/slow-head", {head, stayOpen}},
                      {"/stalled-body", {head + "\r\nbo", stayOpen}},
                      {"/cut-head", {head}},
                      {"/cut-body", {head + "\r\nbo"}},
                      {"/silent", {""}},
                      {"/flood", {"HTTP/1.1 200 OK\r\n" + std::string(1 << 20, 'x'), stayOpen}}};
    const std::pair<const char*, const char*> cases[] = {
        {"/good", "200 body"},       {"/error", "refused"},     {"/nowhere", "refused"},
        {"/slow-head", "time"},      {"/stalled-body", "time"}, {"/cut-head", "connection"},
        {"/cut-body", "connection"}, {"/silent", "connection"}, {"/flood", "too large"}};
    for (const auto& [path, outcome] : cases)
        EXPECT_EQ(get(server.address(path), outcome == std::string_view("time") ? 200ms : 10s), outcome)
            << path;
    EXPECT_EQ(server.requests.size(), std::size(cases)) << "each request is sent once, whatever becomes of it";
    const std::string gone = server.address("/good");
    server.close();
    EXPECT_EQ(get(gone), "connection");
}

TEST_F(HttpFetching, AsksNothingBeforeTheServerHasProvedWhoItIs) {
    const struct {
        const char* host;
        bool isKnown;
        const char* outcome;
    } cases[] = {{"IP:127.0.0.1", true, "200 body"},
                 {"DNS:other.example", true, "insecure"},
                 {"IP:127.0.0.1", false, "insecure"}};

    for (const auto& [host, isKnown, outcome] : cases) {
        const QSslConfiguration configuration = test::serving(host);
        authorities = isKnown ? QList{configuration.localCertificate()} : QList<QSslCertificate>();
        LoopbackServer secure(configuration);
        secure.replies = {{"/", {httpAnswer("200 OK", "body")}}};
        EXPECT_EQ(get(secure.address("/")), outcome) << host;
        EXPECT_EQ(secure.requests.empty(), outcome == std::string_view("insecure")) << host;
    }
    EXPECT_EQ(get("https" + server.address("/").substr(4), 300ms), "time") << "no way back to plain http";
}

TEST_F(HttpFetching, EndsWithItsObject) {
    server.replies = {{"/", {"", LoopbackServer::Afterwards::stayOpen}}};
    auto fetch = std::make_unique<HttpFetch>(
        HttpRequest{.url = QUrl(QString::fromStdString(server.address("/"))), .headers = {}, .proxy = {}},
        HttpOptions{.timeLimit = 10s, .sizeLimit = kLimit, .authorities = {}},
        [](const RemoteResult<HttpAnswer>&) { ADD_FAILURE() << "nobody is there to be told"; });
    ASSERT_TRUE(loop.until([&] { return server.requests.size() == 1; }));
    fetch.reset();
    EXPECT_TRUE(loop.until([&] { return server.findChildren<QTcpSocket*>().isEmpty(); }))
        << "the connection is closed";
}

} // namespace tavrik
