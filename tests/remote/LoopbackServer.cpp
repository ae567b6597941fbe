#include "LoopbackServer.h"

#include <QSslKey>

#include <openssl/bio.h>
#include <openssl/ec.h>
#include <openssl/pem.h>
#include <openssl/x509v3.h>

#include <memory>

namespace tavrik::test {

namespace {

template<typename T, auto free>
struct Free {
    void operator()(T* object) const { free(object); }
};

template<typename T, auto free>
using Owned = std::unique_ptr<T, Free<T, free>>;

template<typename Write>
QByteArray pem(Write write) {
    const Owned<BIO, BIO_free_all> memory(BIO_new(BIO_s_mem()));
    write(memory.get());
    char* bytes = nullptr;
    const long size = BIO_get_mem_data(memory.get(), &bytes);
    return {bytes, static_cast<qsizetype>(size)};
}

} // namespace

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

Certificate makeCertificate(const char* host, const Certificate* authority) {
    const Owned<EVP_PKEY, EVP_PKEY_free> key(EVP_EC_gen("P-256"));
    const Owned<X509, X509_free> certificate(X509_new());
    static long number = 1;
    X509_set_version(certificate.get(), X509_VERSION_3);
    ASN1_INTEGER_set(X509_get_serialNumber(certificate.get()), number++);
    X509_gmtime_adj(X509_getm_notBefore(certificate.get()), -60);
    X509_gmtime_adj(X509_getm_notAfter(certificate.get()), 3600);
    X509_set_pubkey(certificate.get(), key.get());
    X509_NAME* const subject = X509_get_subject_name(certificate.get());
    X509_NAME_add_entry_by_txt(subject, "CN", MBSTRING_ASC, reinterpret_cast<const unsigned char*>(host), -1,
                               -1, 0);
    const auto extend = [&](int what, const std::string& value) {
        const Owned<X509_EXTENSION, X509_EXTENSION_free> extension(
            X509V3_EXT_conf_nid(nullptr, nullptr, what, value.c_str()));
        X509_add_ext(certificate.get(), extension.get(), -1);
    };
    extend(NID_basic_constraints, authority ? "critical,CA:FALSE" : "critical,CA:TRUE");
    extend(NID_subject_alt_name, (host[0] >= '0' && host[0] <= '9' ? "IP:" : "DNS:") + std::string(host));

    Owned<X509, X509_free> issuer;
    Owned<EVP_PKEY, EVP_PKEY_free> issuersKey;
    if (authority) {
        const QByteArray both = authority->certificate.toPem() + authority->key.toPem();
        const Owned<BIO, BIO_free_all> memory(BIO_new_mem_buf(both.data(), static_cast<int>(both.size())));
        issuer.reset(PEM_read_bio_X509(memory.get(), nullptr, nullptr, nullptr));
        issuersKey.reset(PEM_read_bio_PrivateKey(memory.get(), nullptr, nullptr, nullptr));
    }
    X509_set_issuer_name(certificate.get(), X509_get_subject_name(issuer ? issuer.get() : certificate.get()));
    X509_sign(certificate.get(), issuersKey ? issuersKey.get() : key.get(), EVP_sha256());
    const QByteArray keyText = pem([&](BIO* to) {
        PEM_write_bio_PrivateKey_traditional(to, key.get(), nullptr, nullptr, 0, nullptr, nullptr);
    });
    return {.certificate = QSslCertificate(pem([&](BIO* to) { PEM_write_bio_X509(to, certificate.get()); })),
            .key = QSslKey(keyText, QSsl::Ec)};
}

QSslConfiguration serving(const Certificate& certificate) {
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(certificate.certificate);
    configuration.setPrivateKey(certificate.key);
    return configuration;
}

} // namespace tavrik::test
