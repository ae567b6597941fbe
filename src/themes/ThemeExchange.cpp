#include "themes/ThemeExchange.h"

#include "model/SettingsManager.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/OnAllCores.h"
#include "platform/PlainFolders.h"
#include "themes/ThemeError.h"
#include "themes/ThemeFile.h"
#include "themes/ThemeFileParts.h"
#include "themes/ThemeIconCheck.h"
#include "themes/ThemeManager.h"

#include <atomic>
#include <cerrno>
#include <set>
#include <utility>
#include <vector>

namespace tavrik {

namespace {

/// A file among a theme's icons.
struct Candidate {
    Bytes content;
    std::string flaw; ///< why it is no icon for a theme file, in a sentence; empty when it is one
};

/// An error only when the disk fails: what is no icon is a candidate with a flaw.
Result<Candidate> readCandidate(const FileManager& files, const MacPath& file) {
    const std::string name = file.name();
    const auto present = files.attributes(file, Links::dontFollow);
    if (!present)
        return present.error();
    if (present->type != FileType::file || !isPortableIconName(name))
        return Candidate{.content = {}, .flaw = quotedName(name) + " is no icon"};
    if (present->size > kLargestThemeIcon)
        return Candidate{.content = {}, .flaw = quotedName(name) + " is too large"};
    auto content = files.read(file, kLargestThemeIcon);
    if (!content)
        return content.error();
    const Status checked = checkThemeIcon(name, *content);
    if (!checked)
        return Candidate{.content = {}, .flaw = checked.error().description};
    return Candidate{.content = std::move(*content), .flaw = {}};
}

} // namespace

ThemeExchange::ThemeExchange(Mac& mac, ThemeManager& themes) : m_mac(mac), m_themes(themes) {}

Result<Bytes> ThemeExchange::exportTheme(const Theme& theme) const {
    const MacPath folder = m_themes.library().iconsOf(theme.themeID);
    if (!isThemeID(theme.themeID) || !m_mac.files.exists(folder.parent()))
        return errorOf(ThemeError::missingRequiredFiles, "“" + theme.name + "” is not in the library");
    const Status plain = checkPlainFolders(m_mac.files, supportFolder(m_mac.volume), folder);
    if (!plain)
        return plain.error();
    auto names = m_mac.files.list(folder);
    if (!names && names.error().code != ENOENT)
        return names.error();
    if (!names)
        names = std::vector<std::string>();

    std::vector<Candidate> candidates(names->size());
    std::atomic<std::size_t> bytes = 0;
    const Status read = onAllCores(names->size(), [&](std::size_t place) -> Status {
        auto candidate = readCandidate(m_mac.files, folder / (*names)[place]);
        if (!candidate)
            return candidate.error();
        if ((bytes += candidate->content.size()) > kLargestThemeSize)
            return errorOf(ThemeError::invalidThemeFormat,
                           "“" + theme.name + "” holds more than " + megabytes(kLargestThemeSize));
        candidates[place] = std::move(*candidate);
        return Done{};
    });
    if (!read)
        return read.error();

    ThemePackage package{.theme = theme, .icons = {}};
    std::set<std::string> keys;
    for (std::size_t place = 0; place < names->size(); ++place) {
        const std::string& name = (*names)[place];
        Candidate& candidate = candidates[place];
        if (candidate.flaw.empty() && !keys.insert(fileNameKey(name)).second)
            candidate.flaw = quotedName(name) + " differs from another one by case or accents alone";
        if (candidate.flaw.empty())
            package.icons.emplace(name, std::move(candidate.content));
        else
            log("Left out of the theme file of " + theme.name + ": " + candidate.flaw);
    }
    return writeThemeFile(package);
}

Result<Theme> ThemeExchange::importTheme(ByteView file, const std::string& fileName) {
    const auto package = readThemeFile(file, fileName);
    if (!package)
        return package.error();
    return m_themes.installTheme(package->theme, package->icons);
}

} // namespace tavrik
