#pragma once

#include "platform/Bytes.h"
#include "remote/RemoteProblem.h"

#include <QList>
#include <QNetworkProxy>
#include <QSslCertificate>
#include <QUrl>

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tavrik {

struct HttpRequest {
    QUrl url;                                                 ///< acceptable, see Endpoint.h
    std::vector<std::pair<std::string, std::string>> headers; ///< beside "Host"
    QNetworkProxy proxy = QNetworkProxy::NoProxy;             ///< see `systemProxyFor`
};

/// The proxy that the system wants for this address; none for this machine itself. May block, where the system
/// runs a script to find out: background only.
QNetworkProxy systemProxyFor(const QUrl& url);

struct HttpAnswer {
    int status = 0; ///< 200 or 304
    std::string etag;
    Bytes body;
};

struct HttpOptions {
    std::chrono::milliseconds timeLimit = std::chrono::seconds(10); ///< for all of it
    std::size_t sizeLimit = 256u << 10;                             ///< bytes, of all that the server sends
    QList<QSslCertificate> authorities;                             ///< trusted beside those of the system
};

/// One GET request. Main thread; never blocks. A request of this class sends what it was given and nothing
/// else: no cookies, no language, no cache, no password. It follows no redirect, takes nothing compressed, is
/// sent once, and a certificate that is not good ends it.
class HttpFetch {
public:
    using Then = std::function<void(RemoteResult<HttpAnswer>)>;

    /// Begins at once. `then` is called once, later, on the main thread; it may destroy this object.
    HttpFetch(HttpRequest request, const HttpOptions& options, Then then);

    /// Ends a request under way; `then` is not called any more.
    ~HttpFetch();
    HttpFetch(const HttpFetch&) = delete;
    HttpFetch& operator=(const HttpFetch&) = delete;

private:
    class Exchange;
    std::unique_ptr<Exchange> m_exchange;
};

} // namespace tavrik
