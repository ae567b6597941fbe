#include "platform/OnAllCores.h"
#include "platform/PathComponent.h"
#include "themes/ThemeError.h"
#include "themes/ThemeFile.h"
#include "themes/ThemeFileParts.h"
#include "themes/ThemeIconCheck.h"
#include "themes/ThemeManifest.h"
#include "themes/ZipReader.h"

#include <optional>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

namespace tavrik {

namespace {

using Icons = std::map<std::string, Bytes>;

constexpr std::size_t kLargestList = 8u << 20; // bytes of the manifest, or of the record

/// Each component may be a file's name on any system.
bool leadsNowhereElse(std::string_view name) {
    if (name.find_first_of("\\:") != std::string_view::npos)
        return false;
    if (name.ends_with('/'))
        name.remove_suffix(1);
    for (std::size_t slash = 0; slash != std::string_view::npos;) {
        slash = name.find('/');
        if (!isSafePathComponent(name.substr(0, slash)))
            return false;
        name.remove_prefix(slash == std::string_view::npos ? name.size() : slash + 1);
    }
    return true;
}

std::optional<std::string> iconNameOf(std::string_view entry) {
    if (!entry.starts_with(kThemeIconsEntry))
        return std::nullopt;
    std::string fileName(entry.substr(kThemeIconsEntry.size()));
    return isPortableIconName(fileName) ? std::optional(std::move(fileName)) : std::nullopt;
}

/// Reads one theme file, step by step; every error names the file.
class Reading {
public:
    Reading(ByteView file, const std::string& name) : m_file(file), m_name(name) {}

    Result<ThemePackage> package();

private:
    Error invalid(const std::string& predicate) const {
        return errorOf(ThemeError::invalidThemeFormat, "“" + m_name + "” " + predicate);
    }

    Error missing(std::string_view entry) const {
        return errorOf(ThemeError::missingRequiredFiles, "“" + m_name + "” has no " + quotedName(entry));
    }

    Status list();
    Status checkManifest();
    Status checkSizes();
    Result<Theme> record() const;
    Result<Icons> icons() const;
    /// The content of a listed entry, as the manifest has it.
    Result<Bytes> content(std::string_view entry) const;

    const ByteView m_file;
    const std::string& m_name;
    std::map<std::string, zip::Entry, std::less<>> m_entries; ///< files only
    ManifestEntries m_manifest;
};

Result<ThemePackage> Reading::package() {
    for (const auto step : {&Reading::list, &Reading::checkManifest, &Reading::checkSizes})
        if (auto status = (this->*step)(); !status)
            return status.error();
    auto theme = record();
    if (!theme)
        return theme.error();
    auto content = icons();
    if (!content)
        return content.error();
    return ThemePackage{.theme = std::move(*theme), .icons = std::move(*content)};
}

Status Reading::list() {
    constexpr std::size_t kBesidesIcons = 3; // both lists and the folder of the icons
    if (m_file.size() > kLargestThemeFile)
        return invalid("is larger than " + megabytes(kLargestThemeFile));
    const auto entries = zip::readEntries(m_file, kMostThemeIcons + kBesidesIcons);
    if (!entries)
        return invalid(entries.error().description);
    std::set<std::string> keys;
    for (const zip::Entry& entry : *entries) {
        if (!leadsNowhereElse(entry.name))
            return invalid("holds a file with the name " + quotedName(entry.name) + ", which is not safe");
        if (!keys.insert(fileNameKey(entry.name)).second)
            return invalid("holds two files that a Mac takes for one, called " + quotedName(entry.name));
        if (entry.name != kThemeIconsEntry)
            m_entries.emplace(entry.name, entry);
    }
    return Done{};
}

Status Reading::checkManifest() {
    const auto entry = m_entries.find(kThemeManifestEntry);
    if (entry == m_entries.end())
        return missing(kThemeManifestEntry);
    if (entry->second.size > kLargestList)
        return invalid("has a damaged manifest");
    const auto data = zip::unpack(entry->second);
    auto manifest = data ? decodeManifest(*data) : Result<ManifestEntries>(Error{"has a damaged manifest"});
    if (!manifest)
        return invalid(manifest.error().description);
    m_entries.erase(entry);
    m_manifest = std::move(*manifest);
    return Done{};
}

Status Reading::checkSizes() {
    if (!m_entries.contains(kThemeRecordEntry))
        return missing(kThemeRecordEntry);
    for (const auto& [name, expected] : m_manifest)
        if (!m_entries.contains(name))
            return missing(name);
    std::size_t total = 0;
    for (const auto& [name, entry] : m_entries) {
        const bool isRecord = name == kThemeRecordEntry;
        if (!isRecord && !iconNameOf(name))
            return invalid("holds " + quotedName(name) + ", which does not belong in a theme");
        const auto expected = m_manifest.find(name);
        if (expected == m_manifest.end())
            return invalid("holds " + quotedName(name) + ", which its manifest does not list");
        if (entry.size != expected->second.size)
            return invalid("holds " + quotedName(name) + " in another size than its manifest says");
        const std::size_t most = isRecord ? kLargestList : kLargestThemeIcon;
        if (entry.size > most)
            return invalid("holds " + quotedName(name) + ", which is larger than " + megabytes(most));
        total += entry.size;
    }
    if (total > kLargestThemeSize)
        return invalid("holds more than " + megabytes(kLargestThemeSize));
    return Done{};
}

Result<Bytes> Reading::content(std::string_view entry) const {
    auto data = zip::unpack(m_entries.find(entry)->second);
    if (!data)
        return invalid("holds " + quotedName(entry) + ", which " + data.error().description);
    if (sha256(*data) != m_manifest.find(entry)->second.hash)
        return invalid("holds " + quotedName(entry) + ", which is not the one that its manifest lists");
    return data;
}

Result<Theme> Reading::record() const {
    const auto data = content(kThemeRecordEntry);
    if (!data)
        return data.error();
    return decodeTheme(*data);
}

Result<Icons> Reading::icons() const {
    Icons icons;
    for (const auto& [name, entry] : m_entries)
        if (const auto fileName = iconNameOf(name))
            icons[*fileName];
    std::vector<Icons::value_type*> places;
    for (auto& icon : icons)
        places.push_back(&icon);

    const auto unpacked = onAllCores(places.size(), [&](std::size_t place) -> Status {
        auto& [fileName, into] = *places[place];
        auto data = content(std::string(kThemeIconsEntry) + fileName);
        if (!data)
            return data.error();
        into = std::move(*data);
        return Done{};
    });
    if (!unpacked)
        return unpacked.error();
    if (const auto limits = checkThemeLimits(icons); !limits)
        return invalid(limits.error().description);
    const auto decoded = onAllCores(places.size(), [&](std::size_t place) {
        return checkThemeIcon(places[place]->first, places[place]->second);
    });
    if (!decoded)
        return invalid("holds a picture that is not taken in: " + decoded.error().description);
    return icons;
}

} // namespace

Result<ThemePackage> readThemeFile(ByteView file, const std::string& name) {
    return Reading(file, name).package();
}

} // namespace tavrik
