#include "system/AppIconFiles.h"

#include "platform/FileManager.h"
#include "platform/PathComponent.h"
#include "platform/PropertyList.h"

#include <QBuffer>
#include <QImageReader>

#include <string_view>

namespace tavrik {

namespace {

constexpr std::size_t kLargestInfoPlist = 16u << 20;

/// The icon file that the bundle's information dictionary names, without ".icns"; empty when there is none. The
/// dictionary is the application's, so the name is not trusted as a path.
std::string namedIconFile(const FileManager& files, const MacPath& bundle) {
    for (const char* place : {"Contents/Info.plist", "WrappedBundle/Info.plist", "Info.plist"}) {
        const auto data = files.read(bundle / place, kLargestInfoPlist);
        if (!data)
            continue;
        const auto info = plist::parse(*data);
        const auto* value = info ? info->find<std::string>("CFBundleIconFile") : nullptr;
        if (!value)
            return {};
        std::string_view name = *value;
        if (name.ends_with(".icns"))
            name.remove_suffix(5);
        return isSafePathComponent(name) ? std::string(name) : std::string();
    }
    return {};
}

} // namespace

AppIconFiles::AppIconFiles(const FileManager& files, const MacPath& bundle)
    : m_files(files),
      m_bundle(bundle),
      m_names{namedIconFile(files, bundle), "icon", "Icon", "app"} {}

std::optional<AppIconFiles::File> AppIconFiles::next() {
    while (m_next < m_names.size()) {
        const std::string& name = m_names[m_next++];
        if (name.empty())
            continue;
        for (const char* place : {"Contents/Resources", "WrappedBundle", ""}) {
            MacPath path = m_bundle / place / (name + ".icns");
            const auto attributes = m_files.attributes(path);
            if (attributes && attributes->type == FileType::file)
                return File{std::move(path), attributes->size};
        }
    }
    return std::nullopt;
}

bool mayBeIconFile(ByteView beginning, std::uint64_t size) {
    constexpr std::size_t containerHeader = 8;
    if (textOf(beginning).starts_with("icns")) {
        if (beginning.size() < containerHeader)
            return false;
        const std::uint32_t length = std::uint32_t{beginning[4]} << 24 | std::uint32_t{beginning[5]} << 16 |
                                     std::uint32_t{beginning[6]} << 8 | beginning[7];
        return length > containerHeader && length <= size;
    }
    QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(beginning.data()),
                                               static_cast<qsizetype>(beginning.size()));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return QImageReader(&buffer).canRead();
}

} // namespace tavrik
