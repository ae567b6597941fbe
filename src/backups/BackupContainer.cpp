#include "backups/BackupContainer.h"

#include "backups/BackupKey.h"
#include "platform/Log.h"
#include "platform/Machine.h"
#include "platform/Random.h"

#include <openssl/crypto.h>
#include <openssl/err.h>
#include <openssl/evp.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <utility>

namespace tavrik {

namespace {

using Nonce = std::array<std::uint8_t, BackupContainer::kNonceSize>;

constexpr std::size_t kShift = BackupContainer::kNonceSize; ///< by which the text lies further back once sealed
constexpr std::size_t kChunk = 16u << 10; ///< bytes that stay in the processor's nearest cache

/// OpenSSL's words about its last failure.
std::string reason() {
    const char* words = ERR_reason_error_string(ERR_get_error());
    ERR_clear_error();
    return words ? words : "the library gives no reason";
}

/// AES-256-GCM, one message and one direction. A step that fails is false.
class Cipher {
public:
    enum class Direction { open = 0, seal = 1 };

    bool begin(Direction direction, const BackupKey& key, const std::uint8_t* nonce) {
        return m_context && EVP_CipherInit_ex2(m_context.get(), EVP_aes_256_gcm(), key.bytes().data(), nonce,
                                               static_cast<int>(direction), nullptr) == 1;
    }

    /// At most `kChunk` bytes, in their place.
    bool process(std::uint8_t* bytes, std::size_t size) {
        int processed = 0;
        return EVP_CipherUpdate(m_context.get(), bytes, &processed, bytes, static_cast<int>(size)) == 1;
    }

    /// When opening, false also where the tag is not that of the message.
    bool finish() {
        std::uint8_t none = 0;
        int processed = 0;
        return EVP_CipherFinal_ex(m_context.get(), &none, &processed) == 1;
    }

    bool takeTag(std::uint8_t* tag) { return control(EVP_CTRL_AEAD_GET_TAG, tag); }

    bool expectTag(std::uint8_t* tag) { return control(EVP_CTRL_AEAD_SET_TAG, tag); }

private:
    struct FreeContext {
        void operator()(EVP_CIPHER_CTX* context) const { EVP_CIPHER_CTX_free(context); } // wipes the key in it
    };

    bool control(int command, std::uint8_t* tag) {
        return EVP_CIPHER_CTX_ctrl(m_context.get(), command, BackupContainer::kTagSize, tag) == 1;
    }

    std::unique_ptr<EVP_CIPHER_CTX, FreeContext> m_context{EVP_CIPHER_CTX_new()};
};

/// Encrypts the first `size` bytes of the container and puts the nonce before them, chunk by chunk, so that
/// the memory is walked once. Each chunk is encrypted where it lies and then moved; the end of it, for which
/// there is no room before the next is encrypted, is held back until then, as the nonce is at first.
bool encryptBehindNonce(Cipher& cipher, Bytes& container, std::size_t size, const Nonce& nonce) {
    Nonce heldBack = nonce;
    std::size_t done = 0;
    do {
        std::uint8_t* chunk = container.data() + done;
        const std::size_t count = std::min(kChunk, size - done);
        if (!cipher.process(chunk, count))
            return false;
        done += count;
        const std::size_t moved = done < size ? count - kShift : count;
        Nonce next{};
        if (moved < count)
            std::memcpy(next.data(), chunk + moved, kShift);
        std::memmove(chunk + kShift, chunk, moved);
        std::memcpy(chunk, heldBack.data(), kShift);
        heldBack = next;
    } while (done < size);
    return true;
}

/// Decrypts the `size` bytes behind the nonce and moves them to its place.
bool decryptBehindNonce(Cipher& cipher, Bytes& container, std::size_t size) {
    for (std::size_t done = 0; done < size; done += kChunk) {
        std::uint8_t* chunk = container.data() + done;
        const std::size_t count = std::min(kChunk, size - done);
        if (!cipher.process(chunk + kShift, count))
            return false;
        std::memmove(chunk, chunk + kShift, count);
    }
    return true;
}

} // namespace

BackupContainer::BackupContainer(const Machine& machine, Random& random)
    : m_machine(machine),
      m_random(random) {}

std::optional<Bytes> BackupContainer::seal(Bytes archive) const {
    const auto key = deriveBackupKey(m_machine);
    if (!key) {
        log("Failed to derive encryption key");
        return std::nullopt;
    }
    const std::size_t size = archive.size();
    archive.reserve(size + kOverhead); // exactly: growing by itself might double it
    archive.resize(size + kOverhead);

    Nonce nonce{};
    std::ranges::copy_n(m_random.bytes(kNonceSize).begin(), kNonceSize, nonce.begin());
    Cipher cipher;
    if (!cipher.begin(Cipher::Direction::seal, *key, nonce.data()) ||
        !encryptBehindNonce(cipher, archive, size, nonce) || !cipher.finish()) {
        log("Encryption failed: " + reason());
        return std::nullopt;
    }
    if (!cipher.takeTag(archive.data() + kNonceSize + size)) {
        log("Failed to combine sealed box");
        return std::nullopt;
    }
    return archive;
}

std::optional<Bytes> BackupContainer::open(Bytes container) const {
    const auto key = deriveBackupKey(m_machine);
    if (!key) {
        log("Failed to derive backup key");
        return std::nullopt;
    }
    if (container.size() < kOverhead) {
        log("Failed to decrypt backup: it is shorter than a sealed box");
        return std::nullopt;
    }
    const std::size_t size = container.size() - kOverhead;
    Cipher cipher;
    if (!cipher.begin(Cipher::Direction::open, *key, container.data()) ||
        !cipher.expectTag(container.data() + kNonceSize + size)) {
        log("Failed to decrypt backup: " + reason());
        return std::nullopt;
    }
    if (!decryptBehindNonce(cipher, container, size) || !cipher.finish()) {
        OPENSSL_cleanse(container.data(), container.size());
        ERR_clear_error();
        log("Failed to decrypt backup: it is damaged, or was made on another Mac");
        return std::nullopt;
    }
    container.resize(size);
    return container;
}

} // namespace tavrik
