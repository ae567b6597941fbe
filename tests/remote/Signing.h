#pragma once

#include "remote/TrustedKeys.h"

#include <QByteArray>

#include <openssl/evp.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace tavrik::test {

/// A pair of keys made of one byte, and what a publisher does with it.
class Signer {
public:
    Signer(std::string id, std::uint8_t seed) : m_id(std::move(id)) {
        const std::string secret(32, static_cast<char>(seed));
        m_key.reset(EVP_PKEY_new_raw_private_key(EVP_PKEY_ED25519, nullptr,
                                                 reinterpret_cast<const unsigned char*>(secret.data()), 32));
    }

    TrustedKey key() const {
        TrustedKey key{.id = m_id, .bytes = {}};
        std::size_t size = key.bytes.size();
        EVP_PKEY_get_raw_public_key(m_key.get(), key.bytes.data(), &size);
        return key;
    }

    std::string sign(std::string_view payload) const {
        const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> context(EVP_MD_CTX_new(),
                                                                              &EVP_MD_CTX_free);
        QByteArray signature(64, 0);
        std::size_t size = 64;
        EVP_DigestSignInit(context.get(), nullptr, nullptr, nullptr, m_key.get());
        EVP_DigestSign(context.get(), reinterpret_cast<unsigned char*>(signature.data()), &size,
                       reinterpret_cast<const unsigned char*>(payload.data()), payload.size());
        return "tavrik-signed-1 " + m_id + " " + signature.toBase64().toStdString() + "\n" +
               std::string(payload);
    }

private:
    std::string m_id;
    std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> m_key{nullptr, &EVP_PKEY_free};
};

/// `{"kind": ..., "serial": ..., "issued": ..., "expires": ..., <rest>}`
inline std::string payload(std::string_view kind, int serial, std::string_view rest,
                           std::string_view issued = "2026-05-01T00:00:00Z",
                           std::string_view expires = "2026-08-01T00:00:00Z") {
    std::string text = R"({"kind":")" + std::string(kind) + R"(","serial":)" + std::to_string(serial);
    text.append(R"(,"issued":")").append(issued).append(R"(","expires":")").append(expires).append("\",");
    return text.append(rest).append("}");
}

} // namespace tavrik::test
