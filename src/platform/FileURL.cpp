#include "platform/FileURL.h"

#include "platform/FileManager.h"

#include <string_view>

namespace tavrik {

namespace {

bool staysAsItIs(char c) {
    const bool isLetterOrDigit = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    return isLetterOrDigit || std::string_view("-._~!$&'()*+,;=:@/").find(c) != std::string_view::npos;
}

} // namespace

std::string fileURLOf(const MacPath& path, const FileManager& files) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string url = "file://";
    for (const char c : path.string()) {
        if (staysAsItIs(c)) {
            url += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        url += '%';
        url += kDigits[byte >> 4];
        url += kDigits[byte & 0xF];
    }
    const auto attributes = files.attributes(path);
    if (attributes && attributes->type == FileType::folder && !url.ends_with('/'))
        url += '/';
    return url;
}

} // namespace tavrik
