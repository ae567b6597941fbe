#pragma once

#include <QSslConfiguration>
#include <QSslKey>
#include <QSslSocket>
#include <QTcpServer>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavrik::test {

/// A real HTTP server on this machine, in the event loop of the test. It sends what it is told, byte for byte.
class LoopbackServer : public QTcpServer {
public:
    enum class Afterwards { close, stayOpen };

    struct Reply {
        std::string bytes;
        Afterwards afterwards = Afterwards::close;
    };

    /// Over TLS when there is a configuration with a certificate and its key.
    explicit LoopbackServer(std::optional<QSslConfiguration> tls = std::nullopt);

    /// "http://127.0.0.1:40000" or "https://..." and the path.
    std::string address(std::string_view path) const;

    /// What each path is answered with; 404 where nothing is said.
    std::map<std::string, Reply, std::less<>> replies;

    /// The heads of all requests, whole, in their order.
    std::vector<std::string> requests;

    /// Connections, whether or not a request came.
    int connections = 0;

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    void answer(QTcpSocket& socket);

    std::optional<QSslConfiguration> m_tls;
};

/// A whole answer, its length included.
std::string httpAnswer(std::string_view status, std::string_view body, std::string_view fields = {});

/// A certificate for "127.0.0.1" or another host, with its key, made by a test authority or, when there is
/// none, by itself.
struct Certificate {
    QSslCertificate certificate;
    QSslKey key;
};

Certificate makeCertificate(const char* host, const Certificate* authority);

QSslConfiguration serving(const Certificate& certificate);

} // namespace tavrik::test
