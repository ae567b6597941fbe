#include "remote/HttpFetch.h"

#include "platform/MainQueue.h"
#include "remote/Endpoint.h"
#include "remote/HttpAnswerReader.h"

#include <QNetworkProxyFactory>
#include <QSslConfiguration>
#include <QSslSocket>
#include <QTimer>

#include <utility>

namespace tavrik {

namespace {

constexpr qint64 kReadAhead = 64 << 10; ///< bytes that the socket takes before they are asked for
constexpr int kSecurePort = 443;
constexpr int kPlainPort = 80;

QSslConfiguration configurationFor(const HttpOptions& options) {
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setProtocol(QSsl::TlsV1_2OrLater);
    configuration.setPeerVerifyMode(QSslSocket::VerifyPeer);
    // A ticket would let the server know this Mac again.
    configuration.setSslOption(QSsl::SslOptionDisableSessionTickets, true);
    configuration.setSslOption(QSsl::SslOptionDisableSessionSharing, true);
    configuration.addCaCertificates(options.authorities);
    return configuration;
}

bool isSecure(const QUrl& url) {
    return url.scheme() == QLatin1String("https");
}

/// The whole request: what is not written here is not sent.
QByteArray textOfRequest(const HttpRequest& request) {
    QByteArray text = "GET " + QByteArray::fromStdString(requestTarget(request.url)) +
                      " HTTP/1.1\r\nHost: " + request.url.authority(QUrl::FullyEncoded).toLatin1() + "\r\n";
    for (const auto& [name, value] : request.headers)
        text += QByteArray::fromStdString(name) + ": " + QByteArray::fromStdString(value) + "\r\n";
    return text + "\r\n";
}

} // namespace

QNetworkProxy systemProxyFor(const QUrl& url) {
    if (isThisMachine(url))
        return QNetworkProxy::NoProxy;
    const QNetworkProxyQuery query(url.host(), static_cast<int>(url.port(kSecurePort)), QStringLiteral("https"),
                                   QNetworkProxyQuery::TcpSocket);
    for (const QNetworkProxy& proxy : QNetworkProxyFactory::systemProxyForQuery(query)) {
        if (proxy.type() == QNetworkProxy::NoProxy ||
            proxy.capabilities().testFlag(QNetworkProxy::TunnelingCapability))
            return proxy;
    }
    return QNetworkProxy::NoProxy;
}

/// One connection, for one request.
class HttpFetch::Exchange {
public:
    Exchange(HttpRequest request, const HttpOptions& options, Then then)
        : m_request(std::move(request)),
          m_then(std::move(then)),
          m_reader(options.sizeLimit) {
        m_timer.setSingleShot(true);
        QObject::connect(&m_timer, &QTimer::timeout, &m_context,
                         [this] { fail(RemoteFailure::time, "no whole answer came in time"); });
        QObject::connect(&m_socket, isSecure(m_request.url) ? &QSslSocket::encrypted : &QSslSocket::connected,
                         &m_context, [this] { m_socket.write(textOfRequest(m_request)); });
        QObject::connect(&m_socket, &QSslSocket::readyRead, &m_context, [this] { read(); });
        QObject::connect(&m_socket, &QSslSocket::errorOccurred, &m_context,
                         [this](QAbstractSocket::SocketError error) { stopped(error); });
        m_socket.setReadBufferSize(kReadAhead);
        m_socket.setProxy(m_request.proxy);
        m_timer.start(options.timeLimit);
        const QString host = m_request.url.host();
        if (isSecure(m_request.url)) {
            m_socket.setSslConfiguration(configurationFor(options));
            m_socket.connectToHostEncrypted(host, static_cast<quint16>(m_request.url.port(kSecurePort)));
        } else {
            m_socket.connectToHost(host, static_cast<quint16>(m_request.url.port(kPlainPort)));
        }
    }

    ~Exchange() {
        m_socket.disconnect(&m_context);
        m_socket.abort();
    }

    Exchange(const Exchange&) = delete;
    Exchange& operator=(const Exchange&) = delete;

private:
    void read() {
        while (!m_isDone && m_socket.bytesAvailable() > 0) {
            const QByteArray bytes = m_socket.read(kReadAhead);
            const auto state = m_reader.take(bytesOf({bytes.data(), static_cast<std::size_t>(bytes.size())}));
            if (state == HttpAnswerReader::State::complete)
                finish(std::move(m_reader.answer()));
            else if (state == HttpAnswerReader::State::failed)
                finish(m_reader.problem());
        }
    }

    void stopped(QAbstractSocket::SocketError error) {
        read();
        const bool isTrust = error == QAbstractSocket::SslHandshakeFailedError ||
                             error == QAbstractSocket::SslInvalidUserDataError ||
                             error == QAbstractSocket::SslInternalError;
        fail(isTrust ? RemoteFailure::insecure : RemoteFailure::connection,
             m_socket.errorString().toStdString());
    }

    void fail(RemoteFailure failure, std::string detail) { finish(RemoteProblem{failure, std::move(detail)}); }

    /// Later, since whoever is told may destroy this, and the socket is in the middle of a signal.
    void finish(RemoteResult<HttpAnswer> result) {
        if (std::exchange(m_isDone, true))
            return;
        m_timer.stop();
        MainQueue::async(&m_context, [this, result = std::move(result)]() mutable {
            m_socket.abort();
            const Then then = std::move(m_then);
            then(std::move(result));
        });
    }

    HttpRequest m_request;
    Then m_then;
    HttpAnswerReader m_reader;
    bool m_isDone = false;
    QObject m_context;
    QTimer m_timer;
    QSslSocket m_socket;
};

HttpFetch::HttpFetch(HttpRequest request, const HttpOptions& options, Then then)
    : m_exchange(std::make_unique<Exchange>(std::move(request), options, std::move(then))) {}

HttpFetch::~HttpFetch() = default;

} // namespace tavrik
