#include "platform/OpenFolder.h"

#include "platform/FileDescriptor.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <string_view>
#include <utility>

namespace tavrik {

OpenFolder OpenFolder::open(int folder, const std::string& path, int extraFlags) {
    OpenFolder opened;
    FileDescriptor descriptor = FileDescriptor::open(folder, path, O_RDONLY | O_DIRECTORY | extraFlags);
    if (!descriptor)
        return opened;
    opened.m_stream = ::fdopendir(descriptor.number());
    if (opened.m_stream)
        opened.m_number = descriptor.release();
    return opened;
}

OpenFolder::OpenFolder(OpenFolder&& other) noexcept
    : m_stream(std::exchange(other.m_stream, nullptr)),
      m_number(std::exchange(other.m_number, -1)) {}

OpenFolder::~OpenFolder() {
    if (m_stream)
        ::closedir(m_stream);
}

std::error_code OpenFolder::list(std::vector<std::string>& names) {
    ::rewinddir(m_stream);
    names.clear();
    errno = 0;
    while (const dirent* entry = ::readdir(m_stream)) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..")
            names.emplace_back(name);
        errno = 0;
    }
    if (errno != 0)
        return lastError();
    std::sort(names.begin(), names.end());
    return {};
}

} // namespace tavrik
