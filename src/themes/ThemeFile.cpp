#include "themes/ThemeFile.h"

#include "platform/OnAllCores.h"
#include "themes/ThemeError.h"
#include "themes/ThemeFileParts.h"
#include "themes/ThemeIconCheck.h"
#include "themes/ThemeManifest.h"
#include "themes/ZipWriter.h"

#include <set>
#include <utility>
#include <vector>

namespace tavrik {

namespace {

constexpr std::size_t kHeadersOfAnEntry = 700; // bytes at most, with the name in both

Error refused(const std::string& why) {
    return errorOf(ThemeError::invalidThemeFormat, why);
}

/// An entry of the file but the manifest.
struct Entry {
    std::string name;
    ByteView content;
};

Result<Bytes> manifestOf(const std::vector<Entry>& entries) {
    std::vector<Sha256> hashes(entries.size());
    ignoreFailure(onAllCores(entries.size(), [&](std::size_t place) -> Status {
        hashes[place] = sha256(entries[place].content);
        return Done{};
    }));
    ManifestEntries lines;
    for (std::size_t place = 0; place < entries.size(); ++place)
        lines[entries[place].name] = {.size = entries[place].content.size(), .hash = hashes[place]};
    return encodeManifest(lines);
}

} // namespace

Result<Bytes> writeThemeFile(const ThemePackage& package) {
    const auto record = encodeTheme(package.theme);
    if (!record)
        return record.error();
    if (const auto readable = decodeTheme(*record); !readable)
        return readable.error();
    if (const auto limits = checkThemeLimits(package.icons); !limits)
        return refused("“" + package.theme.name + "” " + limits.error().description);
    std::vector<Entry> entries{{std::string(kThemeRecordEntry), *record}};
    std::set<std::string> keys;
    std::size_t size = record->size();
    for (const auto& [fileName, content] : package.icons) {
        if (!isPortableIconName(fileName) || !keys.insert(fileNameKey(fileName)).second ||
            content.size() > kLargestThemeIcon)
            return refused(quotedName(fileName) + " cannot be in a theme file");
        entries.push_back({std::string(kThemeIconsEntry) + fileName, content});
        size += content.size();
    }
    const auto manifest = manifestOf(entries);
    if (!manifest)
        return manifest.error();

    zip::Writer archive;
    archive.reserve(size + manifest->size() + (entries.size() + 1) * kHeadersOfAnEntry);
    archive.add(kThemeManifestEntry, *manifest);
    for (const Entry& entry : entries)
        archive.add(entry.name, entry.content);
    Bytes file = archive.finish();
    if (file.size() > kLargestThemeFile)
        return refused("“" + package.theme.name + "” is larger than " + megabytes(kLargestThemeFile));
    return file;
}

} // namespace tavrik
