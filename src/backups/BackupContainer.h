#pragma once

#include "platform/Bytes.h"

#include <cstddef>
#include <optional>

namespace tavrik {

class Machine;
class Random;

/// Seals an archive into the container of a backup and opens it: AES-256-GCM in the combined form, which is a
/// nonce (12 bytes), the ciphertext (as long as the archive) and the authentication tag (16 bytes), with
/// nothing before it and no additional data. The key is derived anew for each call. Any thread; pure but for
/// the log.
class BackupContainer {
public:
    static constexpr std::size_t kNonceSize = 12; ///< bytes
    static constexpr std::size_t kTagSize = 16;   ///< bytes
    static constexpr std::size_t kOverhead = kNonceSize + kTagSize;

    BackupContainer(const Machine& machine, Random& random);

    /// Under a fresh random nonce. Works in the archive's own memory and does not copy the whole when its
    /// capacity has room for `kOverhead` more. Nothing, with log lines, on failure.
    std::optional<Bytes> seal(Bytes archive) const;

    /// The archive. Nothing, with a log line, when the key cannot be derived, or when the container is shorter
    /// than its overhead, damaged, or sealed on another machine; no byte of what was decrypted stays in memory
    /// then.
    std::optional<Bytes> open(Bytes container) const;

private:
    const Machine& m_machine;
    Random& m_random;
};

} // namespace tavrik
