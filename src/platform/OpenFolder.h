#pragma once

#include <dirent.h>

#include <string>
#include <system_error>
#include <vector>

namespace tavrik {

/// A folder of the host, held open so that what is done in it stays in it, whatever happens to its path. One
/// thread at a time.
class OpenFolder {
public:
    /// Empty when it cannot be opened, a link among the reasons unless it is to be followed; errno says why.
    /// `folder` as for `FileDescriptor::open`.
    static OpenFolder open(int folder, const std::string& path, int extraFlags);

    OpenFolder(OpenFolder&& other) noexcept;
    OpenFolder& operator=(OpenFolder&&) = delete;
    ~OpenFolder();

    explicit operator bool() const { return m_stream != nullptr; }

    int number() const { return m_number; }

    /// The names in it, without "." and "..", in byte order.
    [[nodiscard]] std::error_code list(std::vector<std::string>& names);

private:
    OpenFolder() = default;

    DIR* m_stream = nullptr;
    int m_number = -1; // owned by the stream
};

} // namespace tavrik
