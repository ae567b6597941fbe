#pragma once

#include "platform/Bytes.h"

#include <sys/types.h>

#include <cstdint>
#include <span>
#include <string>
#include <system_error>
#include <utility>

namespace tavrik {

/// What errno holds, as a value.
std::error_code lastError();

/// An open file of the host, closed when it goes and never handed to a child. Calls that a signal cut short are
/// taken up again. One thread at a time.
class FileDescriptor {
public:
    FileDescriptor() = default;

    explicit FileDescriptor(int number) : m_number(number) {}

    FileDescriptor(FileDescriptor&& other) noexcept;
    FileDescriptor& operator=(FileDescriptor&& other) noexcept;
    ~FileDescriptor();

    /// Empty when it cannot be opened; errno says why. A pipe or device never makes it wait. `folder` is an
    /// open folder's number, or AT_FDCWD for a whole path.
    static FileDescriptor open(int folder, const std::string& path, int flags, mode_t permissions = 0);

    explicit operator bool() const { return m_number >= 0; }

    int number() const { return m_number; }

    /// Gives the number away, to whoever closes it then.
    int release() { return std::exchange(m_number, -1); }

    /// The number of bytes read, 0 at the end; an error below 0 with errno set.
    ssize_t read(std::span<std::uint8_t> buffer);

    [[nodiscard]] std::error_code writeAll(ByteView data);

    /// Waits until the content is on stable storage.
    [[nodiscard]] std::error_code flush();

    /// Closing may be the moment at which a write turns out to have failed. Empty afterwards, whatever
    /// happened.
    [[nodiscard]] std::error_code close();

private:
    int m_number = -1;
};

} // namespace tavrik
