#include "LoopbackServer.h"

#include <QSslKey>

#include <openssl/rsa.h>
#include <openssl/x509v3.h>

#include <memory>

namespace tavrik::test {

LoopbackServer::LoopbackServer(std::optional<QSslConfiguration> tls) : m_tls(std::move(tls)) {
    listen(QHostAddress::LocalHost);
}

std::string LoopbackServer::address(std::string_view path) const {
    return (m_tls ? "https://127.0.0.1:" : "http://127.0.0.1:") + std::to_string(serverPort()) +
           std::string(path);
}

void LoopbackServer::incomingConnection(qintptr descriptor) {
    ++connections;
    auto* const socket = new QSslSocket(this);
    socket->setSocketDescriptor(descriptor);
    connect(socket, &QTcpSocket::readyRead, this, [this, socket] { answer(*socket); });
    connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    if (m_tls) {
        socket->setSslConfiguration(*m_tls);
        socket->startServerEncryption();
    }
}

void LoopbackServer::answer(QTcpSocket& socket) {
    const std::string request = socket.peek(1 << 16).toStdString();
    if (!request.ends_with("\r\n\r\n"))
        return;
    socket.readAll();
    requests.push_back(request);
    const std::size_t path = request.find(' ') + 1;
    const auto reply = replies.find(request.substr(path, request.find(' ', path) - path));
    socket.write(QByteArray::fromStdString(reply != replies.end() ? reply->second.bytes
                                                                  : httpAnswer("404 Not Found", "")));
    if (reply == replies.end() || reply->second.afterwards == Afterwards::close)
        socket.disconnectFromHost();
}

std::string httpAnswer(std::string_view status, std::string_view body, std::string_view fields) {
    std::string answer =
        "HTTP/1.1 " + std::string(status) + "\r\nContent-Length: " + std::to_string(body.size());
    return answer.append("\r\n").append(fields).append("\r\n").append(body);
}

QSslConfiguration serving(const char* host) {
    const std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> key(EVP_RSA_gen(2048), &EVP_PKEY_free);
    const std::unique_ptr<X509, decltype(&X509_free)> certificate(X509_new(), &X509_free);
    X509_set_version(certificate.get(), X509_VERSION_3);
    X509_gmtime_adj(X509_getm_notBefore(certificate.get()), -60);
    X509_gmtime_adj(X509_getm_notAfter(certificate.get()), 3600);
    X509_set_pubkey(certificate.get(), key.get());
    X509_NAME_add_entry_by_txt(X509_get_subject_name(certificate.get()), "CN", MBSTRING_ASC,
                               reinterpret_cast<const unsigned char*>(host), -1, -1, 0);
    X509_set_issuer_name(certificate.get(), X509_get_subject_name(certificate.get()));
    const std::unique_ptr<X509_EXTENSION, decltype(&X509_EXTENSION_free)> name(
        X509V3_EXT_conf_nid(nullptr, nullptr, NID_subject_alt_name, host), &X509_EXTENSION_free);
    X509_add_ext(certificate.get(), name.get(), -1);
    X509_sign(certificate.get(), key.get(), EVP_sha256());
    const auto encoded = [](auto encode, const auto* object) {
        unsigned char* bytes = nullptr;
        const int size = encode(object, &bytes);
        const QByteArray copy(reinterpret_cast<const char*>(bytes), size);
        OPENSSL_free(bytes);
        return copy;
    };
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(QSslCertificate(encoded(i2d_X509, certificate.get()), QSsl::Der));
    configuration.setPrivateKey(QSslKey(encoded(i2d_PrivateKey, key.get()), QSsl::Rsa, QSsl::Der));
    return configuration;
}

} // namespace tavrik::test
