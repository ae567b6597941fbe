#pragma once

#include "platform/Bytes.h"

#include <array>
#include <cstdint>
#include <optional>

namespace tavrik {

class Machine;

/// The key that backups are sealed with: 32 bytes, never stored, wiped from memory when it goes. Whoever knows
/// the machine's serial number can derive it: it keeps a backup from opening on another Mac, and is no secret
/// from the user or their programs.
class BackupKey {
public:
    static constexpr std::size_t kSize = 32; ///< bytes

    explicit BackupKey(const std::array<std::uint8_t, kSize>& bytes);
    BackupKey(BackupKey&& other) noexcept; ///< wipes `other`
    BackupKey& operator=(BackupKey&&) = delete;
    ~BackupKey();

    ByteView bytes() const { return m_bytes; }

private:
    std::array<std::uint8_t, kSize> m_bytes{};
};

/// The SHA-256 digest of the platform serial number. Nothing, with a log line, when the machine has none. Any
/// thread.
std::optional<BackupKey> deriveBackupKey(const Machine& machine);

} // namespace tavrik
