#include "remote/RequestSigning.h"

#include <QByteArray>

#include <openssl/evp.h>
#include <openssl/hmac.h>

#include <cmath>
#include <cstdio>
#include <ctime>

namespace tavrik {

namespace {

constexpr std::size_t kDigestSize = 32; ///< bytes, SHA-256

using Digest = std::array<std::uint8_t, kDigestSize>;

QByteArray byteArray(const Digest& digest) {
    return {reinterpret_cast<const char*>(digest.data()), static_cast<qsizetype>(digest.size())};
}

/// All zeros, which no service takes, should the library fail.
Digest sha256(ByteView bytes) {
    Digest digest{};
    if (EVP_Digest(bytes.data(), bytes.size(), digest.data(), nullptr, EVP_sha256(), nullptr) != 1)
        digest.fill(0);
    return digest;
}

} // namespace

const RequestKey kRequestKey{.id = "app-1",
                             .bytes = {0x35, 0x55, 0x93, 0xc5, 0x5e, 0x28, 0x69, 0x4c, 0x0e, 0xe7, 0x04,
                                       0x98, 0x57, 0x40, 0x3b, 0x5c, 0x3b, 0xfb, 0x8a, 0xd3, 0x97, 0x70,
                                       0xb5, 0xbb, 0x05, 0xb1, 0x35, 0xf2, 0x97, 0xe6, 0x1e, 0x0a}};

Date wholeHour(Date date) {
    constexpr double hour = 3600; // seconds; the reference date is at a full one
    return {std::floor(date.sinceReference / hour) * hour};
}

std::string httpDate(Date date) {
    static constexpr std::array days{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    static constexpr std::array months{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                       "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const auto seconds = static_cast<std::time_t>(std::floor(toUnix(date)));
    std::tm parts{};
    gmtime_r(&seconds, &parts);
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%s, %02d %s %04d %02d:%02d:%02d GMT",
                  days[static_cast<std::size_t>(parts.tm_wday)], parts.tm_mday,
                  months[static_cast<std::size_t>(parts.tm_mon)], parts.tm_year + 1900, parts.tm_hour,
                  parts.tm_min, parts.tm_sec);
    return text.data();
}

std::string textToSign(std::string_view method, std::string_view path, std::string_view date, ByteView body) {
    std::string text(method);
    for (const std::string_view line : {path, date})
        text.append("\n").append(line);
    return text + "\n" + byteArray(sha256(body)).toHex().toStdString();
}

std::string authorization(const RequestKey& key, std::string_view text) {
    Digest code{};
    const ByteView bytes = bytesOf(text);
    if (!HMAC(EVP_sha256(), key.bytes.data(), static_cast<int>(key.bytes.size()), bytes.data(), bytes.size(),
              code.data(), nullptr))
        code.fill(0);
    return "Tavrik-HMAC-SHA256 key=\"" + std::string(key.id) + "\", signature=\"" +
           byteArray(code).toBase64().toStdString() + "\"";
}

} // namespace tavrik
