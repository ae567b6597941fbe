#include "remote/SignedAnswer.h"

#include <QByteArray>

#include <openssl/evp.h>

#include <algorithm>
#include <memory>
#include <optional>

namespace tavrik {

namespace {

constexpr std::string_view kFormat = "tavrik-signed-1 ";
constexpr std::size_t kSignatureSize = 64; ///< bytes
constexpr std::size_t kLongestLine = 256;  ///< characters, the line feed not counted

struct FreeKey {
    void operator()(EVP_PKEY* key) const { EVP_PKEY_free(key); }
};

struct FreeContext {
    void operator()(EVP_MD_CTX* context) const { EVP_MD_CTX_free(context); }
};

std::optional<QByteArray> signature(std::string_view base64) {
    const auto decoded =
        QByteArray::fromBase64Encoding(QByteArray(base64.data(), static_cast<qsizetype>(base64.size())),
                                       QByteArray::Base64Encoding | QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded || decoded.decoded.size() != static_cast<qsizetype>(kSignatureSize))
        return std::nullopt;
    return decoded.decoded;
}

bool isSignedWith(const TrustedKey& key, const QByteArray& signature, ByteView payload) {
    const std::unique_ptr<EVP_PKEY, FreeKey> publicKey(
        EVP_PKEY_new_raw_public_key(EVP_PKEY_ED25519, nullptr, key.bytes.data(), key.bytes.size()));
    const std::unique_ptr<EVP_MD_CTX, FreeContext> context(EVP_MD_CTX_new());
    return publicKey && context &&
           EVP_DigestVerifyInit(context.get(), nullptr, nullptr, nullptr, publicKey.get()) == 1 &&
           EVP_DigestVerify(context.get(), reinterpret_cast<const unsigned char*>(signature.data()),
                            kSignatureSize, payload.data(), payload.size()) == 1;
}

RemoteProblem notTrusted(std::string why) {
    return {RemoteFailure::notTrusted, std::move(why)};
}

} // namespace

RemoteResult<SignedAnswer> verifiedAnswer(ByteView bytes, std::span<const TrustedKey> keys) {
    const std::string_view text = textOf(bytes);
    const std::size_t end = text.substr(0, kLongestLine + 1).find('\n');
    if (end == text.npos || !text.starts_with(kFormat))
        return notTrusted("it is not signed");
    const std::string_view line = text.substr(kFormat.size(), end - kFormat.size());
    const std::size_t blank = std::min(line.find(' '), line.size());
    const std::string_view id = line.substr(0, blank);
    const auto key = std::ranges::find(keys, id, &TrustedKey::id);
    if (key == keys.end())
        return notTrusted("it is signed with a key that is not known");
    const auto given = signature(line.substr(std::min(blank + 1, line.size())));
    const ByteView payload = bytes.subspan(end + 1);
    if (!given || !isSignedWith(*key, *given, payload))
        return notTrusted("its signature is not good");
    return SignedAnswer{.keyID = std::string(id), .payload = payload};
}

} // namespace tavrik
