#pragma once

#include "platform/SerialQueue.h"
#include "remote/AnswerCache.h"
#include "remote/AnswerHeader.h"
#include "remote/HttpFetch.h"
#include "remote/TrustedKeys.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace tavrik {

class Clock;
class UserDefaults;

/// An answer that was signed by us, is meant for this service and is in force.
struct TrustedAnswer {
    std::string keyID;
    AnswerHeader header;
    QJsonObject payload;
};

/// Verifies an answer, then reads its header. Pure; any thread.
RemoteResult<TrustedAnswer> trustedAnswer(ByteView bytes, RemoteKind kind, const std::vector<TrustedKey>& keys,
                                          const SeenSerials& seen, Date now);

/// One service: what it said last, and asking it anew. The program has one for the texts and one for the
/// updates. Main thread; the user defaults are read and written on the queue that it is given.
class RemoteService {
public:
    struct With {
        UserDefaults& defaults;
        const Clock& clock;
        SerialQueue& queue; ///< outlives the service
        std::vector<TrustedKey> keys;
        HttpOptions http;
        /// Whether this version can read a payload. One that it cannot is not kept.
        std::function<bool(const QJsonObject&)> isUnderstood = [](const QJsonObject&) { return true; };
    };

    using Then = std::function<void()>;

    RemoteService(RemoteKind kind, With with);

    /// Ends a request under way.
    ~RemoteService();
    RemoteService(const RemoteService&) = delete;
    RemoteService& operator=(const RemoteService&) = delete;

    /// Reads what was kept. To be done once, before anything else.
    void load(Then then);

    /// Whether the schedule allows a request now. False before `load` is done and during a request.
    bool isDue() const;

    /// Sends one request, whatever the schedule says, unless one is under way, which is then waited for, or the
    /// user defaults switch the network off for good, which is told as a failure. `then` comes later, whether
    /// it went well or not.
    void fetch(Then then);

    /// Ends a request under way, and forgets who waits for it.
    void abort();

    bool isFetching() const { return m_request != nullptr; }

    /// The last good answer, while it is in force: verified when it came, and when it was read from the cache.
    const TrustedAnswer* answer() const;

    /// Why the last request failed; nothing when it went well or there was none.
    const std::optional<RemoteFailure>& failure() const { return m_kept.failure; }

    const FetchHistory& history() const { return m_kept.history; }

private:
    /// One request, from looking up where to send it to on. What belongs to it ends with it.
    struct Request : QObject {
        std::string address;
        std::unique_ptr<HttpFetch> fetch;
    };

    void take(CachedAnswer kept);
    void send(const QUrl& url, const QNetworkProxy& proxy);
    void received(RemoteResult<HttpAnswer> answer);
    std::optional<RemoteProblem> accept(HttpAnswer answer);
    void finish(const std::optional<RemoteProblem>& problem);
    void note(FetchHistory& history, bool isGood) const;

    RemoteKind m_kind;
    With m_with;
    CachedAnswer m_kept;
    std::optional<TrustedAnswer> m_answer;
    bool m_isLoaded = false;
    std::vector<Then> m_waiting;
    QObject m_context; ///< with it ends what the queue would hand to the service
    std::unique_ptr<Request> m_request;
};

} // namespace tavrik
