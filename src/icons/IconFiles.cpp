#include "icons/IconFiles.h"

namespace tavrik {

namespace {

constexpr std::string_view kPrefix = "icon_";
constexpr std::string_view kSuffix = ".png";
constexpr int kLargestIndex = 999'999'999;

} // namespace

std::string iconFileName(int index) {
    return std::string(kPrefix) + std::to_string(index) + std::string(kSuffix);
}

std::optional<int> iconIndex(std::string_view fileName) {
    if (fileName.size() <= kPrefix.size() + kSuffix.size() || !fileName.starts_with(kPrefix) ||
        !fileName.ends_with(kSuffix))
        return std::nullopt;
    fileName.remove_prefix(kPrefix.size());
    fileName.remove_suffix(kSuffix.size());

    int index = 0;
    for (const char digit : fileName) {
        if (digit < '0' || digit > '9')
            return std::nullopt;
        const int value = digit - '0';
        if (index > (kLargestIndex - value) / 10)
            return std::nullopt;
        index = index * 10 + value;
    }
    return index;
}

MacPath thumbnailPath(const MacPath& icon, ThumbnailSize size) {
    std::string name = icon.name();
    if (name.ends_with(kSuffix))
        name.resize(name.size() - kSuffix.size());
    return icon.parent() / (name + (size == ThumbnailSize::x1 ? "_thumb.png" : "_thumb@2x.png"));
}

} // namespace tavrik
