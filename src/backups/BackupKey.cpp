#include "backups/BackupKey.h"

#include "platform/Log.h"
#include "platform/Machine.h"

#include <openssl/crypto.h>
#include <openssl/evp.h>

namespace tavrik {

BackupKey::BackupKey(const std::array<std::uint8_t, kSize>& bytes) : m_bytes(bytes) {}

BackupKey::BackupKey(BackupKey&& other) noexcept : m_bytes(other.m_bytes) {
    OPENSSL_cleanse(other.m_bytes.data(), kSize);
}

BackupKey::~BackupKey() {
    OPENSSL_cleanse(m_bytes.data(), kSize);
}

std::optional<BackupKey> deriveBackupKey(const Machine& machine) {
    const auto serialNumber = machine.serialNumber();
    std::array<std::uint8_t, BackupKey::kSize> digest{};
    std::optional<BackupKey> key;
    if (serialNumber && EVP_Digest(serialNumber->data(), serialNumber->size(), digest.data(), nullptr,
                                   EVP_sha256(), nullptr) == 1)
        key.emplace(digest);
    OPENSSL_cleanse(digest.data(), digest.size());
    if (!key)
        log("Failed to get device serial");
    return key;
}

} // namespace tavrik
