#include "remote/RemoteService.h"

#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/MainQueue.h"
#include "platform/Result.h"
#include "remote/Endpoint.h"
#include "remote/NetworkConsent.h"
#include "remote/RequestSigning.h"
#include "remote/SignedAnswer.h"
#include "remote/StrictJson.h"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace tavrik {

namespace {

constexpr int kNotModified = 304;
constexpr int kMostFailures = 100; ///< that are counted

/// Where a request goes, found out where it may block.
struct Destination {
    bool isSwitchedOff = false;
    std::optional<QUrl> url;
    QNetworkProxy proxy = QNetworkProxy::NoProxy;
};

Destination destinationOf(RemoteKind kind, UserDefaults& defaults) {
    Destination destination{.isSwitchedOff = NetworkConsent(defaults).read().isOffForGood, .url = std::nullopt};
    if (destination.isSwitchedOff)
        return destination;
    destination.url = endpointOf(kind, defaults);
    if (destination.url)
        destination.proxy = systemProxyFor(*destination.url);
    return destination;
}

/// The same for everybody, but for the ETag, which is the same for everybody who has the same answer.
std::vector<std::pair<std::string, std::string>> headersFor(const QUrl& url, const std::string& etag,
                                                            Date now) {
    const std::string date = httpDate(wholeHour(now));
    std::vector<std::pair<std::string, std::string>> headers{
        {"User-Agent", "Tavrik"},
        {"Accept-Encoding", "identity"},
        {"Connection", "close"},
        {"Date", date},
        {"Authorization", authorization(kRequestKey, textToSign("GET", requestTarget(url), date, {}))}};
    if (!etag.empty())
        headers.emplace_back("If-None-Match", etag);
    return headers;
}

} // namespace

RemoteResult<TrustedAnswer> trustedAnswer(ByteView bytes, RemoteKind kind, const std::vector<TrustedKey>& keys,
                                          const SeenSerials& seen, Date now) {
    const auto answer = verifiedAnswer(bytes, keys);
    if (!answer)
        return answer.problem();
    auto payload = json::object(answer->payload);
    if (!payload)
        return RemoteProblem{RemoteFailure::notUnderstood, "it is no JSON as it should be"};
    const auto header = answerHeader(*payload, kind, now);
    if (!header)
        return header.problem();
    if (const auto highest = seen.find(answer->keyID);
        highest != seen.end() && header->serial < highest->second)
        return RemoteProblem{RemoteFailure::notTrusted, "it is older than one that was seen before"};
    return TrustedAnswer{.keyID = answer->keyID, .header = *header, .payload = std::move(*payload)};
}

RemoteService::RemoteService(RemoteKind kind, With with) : m_kind(kind), m_with(std::move(with)) {}

RemoteService::~RemoteService() = default;

void RemoteService::load(Then then) {
    m_with.queue.async([this, kind = m_kind, &defaults = m_with.defaults,
                        context = QPointer<QObject>(&m_context), then = std::move(then)] {
        MainQueue::async(context, [this, kept = AnswerCache(kind, defaults).read(), then] {
            take(kept);
            then();
        });
    });
}

void RemoteService::take(CachedAnswer kept) {
    m_kept = std::move(kept);
    m_isLoaded = true;
    if (m_kept.bytes.empty())
        return;
    auto trusted = trustedAnswer(m_kept.bytes, m_kind, m_with.keys, m_kept.serials, m_with.clock.now());
    if (trusted && m_with.isUnderstood(trusted->payload))
        m_answer = std::move(*trusted);
    else
        log("Network: what was kept of the " + std::string(nameOf(m_kind)) + " is not used" +
            (trusted ? "" : ": " + trusted.problem().detail));
}

bool RemoteService::isDue() const {
    FetchHistory history = m_kept.history;
    if (!answer())
        history.answered.reset();
    return m_isLoaded && !isFetching() && isFetchDue(history, m_with.clock.now());
}

void RemoteService::fetch(Then then) {
    m_waiting.push_back(std::move(then));
    if (m_request)
        return;
    m_request = std::make_unique<Request>();
    m_with.queue.async(
        [this, kind = m_kind, &defaults = m_with.defaults, context = QPointer<QObject>(m_request.get())] {
            MainQueue::async(context, [this, destination = destinationOf(kind, defaults)] {
                if (destination.isSwitchedOff)
                    finish(RemoteProblem{RemoteFailure::switchedOff, "the network is switched off"});
                else if (!destination.url)
                    finish(RemoteProblem{RemoteFailure::address, "its address may not be asked"});
                else
                    send(*destination.url, destination.proxy);
            });
        });
}

void RemoteService::abort() {
    m_request.reset();
    m_waiting.clear();
}

void RemoteService::send(const QUrl& url, const QNetworkProxy& proxy) {
    m_request->address = url.toString(QUrl::FullyEncoded).toStdString();
    const bool isKnown = answer() && m_kept.address == m_request->address;
    m_request->fetch = std::make_unique<HttpFetch>(
        HttpRequest{.url = url,
                    .headers = headersFor(url, isKnown ? m_kept.etag : std::string(), m_with.clock.now()),
                    .proxy = proxy},
        m_with.http, [this](RemoteResult<HttpAnswer> answer) { received(std::move(answer)); });
}

void RemoteService::received(RemoteResult<HttpAnswer> answer) {
    if (!answer)
        finish(answer.problem());
    else if (answer->status != kNotModified)
        finish(accept(std::move(*answer)));
    else if (this->answer())
        finish(std::nullopt);
    else
        finish(RemoteProblem{RemoteFailure::expired, "what is kept is not modified, but not in force either"});
}

/// Keeps an answer that is what it should be; the problem with one that is not, which leaves what was kept as
/// it was.
std::optional<RemoteProblem> RemoteService::accept(HttpAnswer answer) {
    auto trusted = trustedAnswer(answer.body, m_kind, m_with.keys, m_kept.serials, m_with.clock.now());
    if (!trusted)
        return trusted.problem();
    if (!m_with.isUnderstood(trusted->payload))
        return RemoteProblem{RemoteFailure::notUnderstood, "it has entries that this version cannot read"};
    m_kept.serials[trusted->keyID] = trusted->header.serial;
    m_kept.bytes = std::move(answer.body);
    m_kept.etag = std::move(answer.etag);
    m_kept.address = m_request->address;
    m_answer = std::move(*trusted);
    return std::nullopt;
}

void RemoteService::finish(const std::optional<RemoteProblem>& problem) {
    m_request.reset();
    m_kept.failure = problem ? std::optional(problem->failure) : std::nullopt;
    if (problem)
        log("Network: no " + std::string(nameOf(m_kind)) + " came: " + problem->detail);
    if (m_kept.failure != RemoteFailure::switchedOff) {
        note(m_kept.history, !problem);
        m_with.queue.async([kind = m_kind, &defaults = m_with.defaults, kept = m_kept] {
            ignoreFailure(AnswerCache(kind, defaults).write(kept)); // what is lost is asked for again
        });
    }
    for (const Then& then : std::exchange(m_waiting, {}))
        then();
}

void RemoteService::note(FetchHistory& history, bool isGood) const {
    const Date now = m_with.clock.now();
    if (isGood)
        history = {.answered = now, .failed = std::nullopt, .failures = 0};
    else
        history = {.answered = history.answered,
                   .failed = now,
                   .failures = std::min(history.failures + 1, kMostFailures)};
}

const TrustedAnswer* RemoteService::answer() const {
    return m_answer && m_answer->header.expires > m_with.clock.now() ? &*m_answer : nullptr;
}

} // namespace tavrik
