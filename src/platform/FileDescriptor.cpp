#include "platform/FileDescriptor.h"

#include "platform/PosixSystem.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace tavrik {

std::error_code lastError() {
    return {errno, std::generic_category()};
}

FileDescriptor::FileDescriptor(FileDescriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}

FileDescriptor& FileDescriptor::operator=(FileDescriptor&& other) noexcept {
    FileDescriptor taken(std::move(other)); // closes what was open until now when it goes
    std::swap(m_number, taken.m_number);
    return *this;
}

FileDescriptor::~FileDescriptor() {
    if (m_number >= 0)
        ::close(m_number);
}

FileDescriptor FileDescriptor::open(int folder, const std::string& path, int flags, mode_t permissions) {
    int number = -1;
    do
        number = ::openat(folder, path.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, permissions);
    while (number < 0 && errno == EINTR);
    return FileDescriptor(number);
}

ssize_t FileDescriptor::read(std::span<std::uint8_t> buffer) {
    ssize_t count = -1;
    do
        count = ::read(m_number, buffer.data(), buffer.size());
    while (count < 0 && errno == EINTR);
    return count;
}

std::error_code FileDescriptor::writeAll(ByteView data) {
    while (!data.empty()) {
        const ssize_t count = ::write(m_number, data.data(), data.size());
        if (count >= 0)
            data = data.subspan(static_cast<std::size_t>(count));
        else if (errno != EINTR)
            return lastError();
    }
    return {};
}

std::error_code FileDescriptor::flush() {
    return flushToDisk(m_number);
}

std::error_code FileDescriptor::close() {
    // After EINTR the number is gone already on the systems we run on; a second call could hit another thread's
    // file.
    if (::close(std::exchange(m_number, -1)) != 0 && errno != EINTR)
        return lastError();
    return {};
}

} // namespace tavrik
