#include "ui/screens/SampleServer.h"

#include "ui/models/Text.h"

#include <QHostAddress>
#include <QJsonDocument>
#include <QTcpSocket>

#include <openssl/evp.h>

#include <array>
#include <cstdint>
#include <memory>

namespace tavrik {

namespace {

constexpr std::string_view kKeyID = "sample";
constexpr std::array<std::uint8_t, 32> kPrivateKey{1, 2, 3};

struct Free {
    void operator()(EVP_PKEY* key) const { EVP_PKEY_free(key); }

    void operator()(EVP_MD_CTX* context) const { EVP_MD_CTX_free(context); }
};

std::unique_ptr<EVP_PKEY, Free> privateKey() {
    return std::unique_ptr<EVP_PKEY, Free>(
        EVP_PKEY_new_raw_private_key(EVP_PKEY_ED25519, nullptr, kPrivateKey.data(), kPrivateKey.size()));
}

QByteArray signedBytes(const QByteArray& payload) {
    const auto key = privateKey();
    const std::unique_ptr<EVP_MD_CTX, Free> context(EVP_MD_CTX_new());
    std::array<std::uint8_t, 64> signature{};
    std::size_t size = signature.size();
    EVP_DigestSignInit(context.get(), nullptr, nullptr, nullptr, key.get());
    EVP_DigestSign(context.get(), signature.data(), &size,
                   reinterpret_cast<const std::uint8_t*>(payload.data()),
                   static_cast<std::size_t>(payload.size()));
    const QByteArray bytes(reinterpret_cast<const char*>(signature.data()), static_cast<qsizetype>(size));
    return "tavrik-signed-1 " + QByteArray(kKeyID.data(), static_cast<qsizetype>(kKeyID.size())) + ' ' +
           bytes.toBase64() + '\n' + payload;
}

std::string pathOf(RemoteKind kind) {
    return "/" + std::string(nameOf(kind));
}

} // namespace

SampleServer::SampleServer() {
    QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] {
        QTcpSocket* const socket = m_server.nextPendingConnection();
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { answer(*socket); });
        QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    });
    if (!m_server.listen(QHostAddress::LocalHost))
        qFatal("no server can be opened on this machine");
}

std::vector<TrustedKey> SampleServer::keys() {
    TrustedKey key{std::string(kKeyID), {}};
    std::size_t size = key.bytes.size();
    EVP_PKEY_get_raw_public_key(privateKey().get(), key.bytes.data(), &size);
    return {key};
}

std::string SampleServer::address(RemoteKind kind) const {
    return "http://127.0.0.1:" + std::to_string(m_server.serverPort()) + pathOf(kind);
}

void SampleServer::say(RemoteKind kind, QJsonObject content) {
    content.insert(QStringLiteral("kind"), toQString(nameOf(kind)));
    content.insert(QStringLiteral("serial"), 1);
    content.insert(QStringLiteral("issued"), QStringLiteral("2026-01-01T00:00:00Z"));
    content.insert(QStringLiteral("expires"), QStringLiteral("2126-01-01T00:00:00Z"));
    m_answers[pathOf(kind)] = signedBytes(QJsonDocument(content).toJson());
}

void SampleServer::answer(QTcpSocket& socket) {
    if (!socket.peek(socket.bytesAvailable()).contains("\r\n\r\n"))
        return;
    ++m_requests;
    const std::string path = socket.readAll().split(' ').value(1).toStdString();
    if (m_isSilent)
        return;
    const auto found = m_answers.find(path);
    const QByteArray body = found == m_answers.end() ? QByteArray() : found->second;
    socket.write((body.isEmpty() ? "HTTP/1.1 404 Not Found" : "HTTP/1.1 200 OK") +
                 QByteArray("\r\nContent-Length: ") + QByteArray::number(body.size()) + "\r\n\r\n" + body);
    socket.disconnectFromHost();
}

} // namespace tavrik
