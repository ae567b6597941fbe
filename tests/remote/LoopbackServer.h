#pragma once

#include "support/WaitFor.h"

#include <QCoreApplication>
#include <QSslConfiguration>
#include <QSslSocket>
#include <QTcpServer>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavrik::test {

/// An application for one test, and waiting while its events run.
class EventLoop {
public:
    template<typename Predicate>
    [[nodiscard]] bool until(Predicate predicate, std::chrono::milliseconds limit = std::chrono::seconds(10)) {
        return waitFor(
            [&] {
                QCoreApplication::processEvents();
                return predicate();
            },
            limit);
    }

private:
    int m_count = 1;
    char m_name[6] = "tests";
    char* m_arguments[2] = {m_name, nullptr};
    QCoreApplication m_application{m_count, m_arguments};
};

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

    std::vector<std::string> requests; ///< whole, in their order
    int connections = 0;               ///< whether or not a request came

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    void answer(QTcpSocket& socket);

    std::optional<QSslConfiguration> m_tls;
};

/// A whole answer, its length included.
std::string httpAnswer(std::string_view status, std::string_view body, std::string_view fields = {});

/// With a fresh certificate for "IP:127.0.0.1" or "DNS:<host>" that is signed with its own key.
QSslConfiguration serving(const char* host);

} // namespace tavrik::test
