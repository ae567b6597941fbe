#include "remote/Endpoint.h"

#include "platform/Log.h"
#include "platform/UserDefaults.h"

#include <QHostAddress>
#include <QString>

#include <string>

namespace tavrik {

namespace {

constexpr std::size_t kLongest = 2000; ///< characters

std::string_view builtIn(RemoteKind kind) {
    return kind == RemoteKind::texts ? "https://tavrik.example/v1/texts" : "https://tavrik.example/v1/updates";
}

std::string_view keyOf(RemoteKind kind) {
    return kind == RemoteKind::texts ? kTextsAddressKey : kUpdatesAddressKey;
}

} // namespace

bool isThisMachine(const QUrl& url) {
    return url.host() == QLatin1String("localhost") || QHostAddress(url.host()).isLoopback();
}

std::optional<QUrl> acceptableAddress(std::string_view address) {
    if (address.size() > kLongest)
        return std::nullopt;
    QUrl url(QString::fromUtf8(address.data(), static_cast<qsizetype>(address.size())), QUrl::StrictMode);
    const bool isSecure = url.scheme() == QLatin1String("https");
    const bool isNear = url.scheme() == QLatin1String("http") && isThisMachine(url);
    if (!url.isValid() || url.host().isEmpty() || (!isSecure && !isNear) || !url.userInfo().isEmpty() ||
        url.hasFragment())
        return std::nullopt;
    return url;
}

std::string requestTarget(const QUrl& url) {
    QString target = url.path(QUrl::FullyEncoded);
    if (target.isEmpty())
        target = QStringLiteral("/");
    if (url.hasQuery())
        target += QLatin1Char('?') + url.query(QUrl::FullyEncoded);
    return target.toStdString();
}

std::optional<QUrl> endpointOf(RemoteKind kind, const UserDefaults& defaults) {
    const auto set = defaults.value(keyOf(kind));
    if (!set)
        return acceptableAddress(builtIn(kind));
    const auto* const text = set->as<std::string>();
    auto url = text ? acceptableAddress(*text) : std::nullopt;
    if (!url)
        log("Network: the address in " + std::string(keyOf(kind)) + " may not be asked");
    return url;
}

} // namespace tavrik
