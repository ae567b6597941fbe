#include "platform/AtomicFile.h"
#include "platform/FileManager.h"
#include "platform/PlainFolders.h"
#include "themes/ThemeLibrary.h"

#include <cerrno>
#include <utility>

namespace tavrik {

namespace {

bool isPlainFile(const FileManager& files, const MacPath& path) {
    const auto present = files.attributes(path, Links::dontFollow);
    return present && present->type == FileType::file;
}

} // namespace

std::vector<ThemeIcon> ThemeLibrary::icons(const std::string& themeID) const {
    const auto folder = plainIconsOf(themeID);
    const auto names = folder ? m_files.list(*folder) : folder.error();
    std::map<std::string, MacPath> found;
    for (const std::string& name : names ? *names : std::vector<std::string>()) {
        const auto bundleID = bundleIDOfIcon(name);
        const MacPath file = *folder / name;
        if (!bundleID || !isPlainFile(m_files, file))
            continue;
        if (name.ends_with(kThemeIconExtensions.front()))
            found.insert_or_assign(*bundleID, file);
        else
            found.emplace(*bundleID, file);
    }
    std::vector<ThemeIcon> icons;
    icons.reserve(found.size());
    for (auto& [bundleID, file] : found)
        icons.push_back({bundleID, std::move(file)});
    return icons;
}

std::optional<MacPath> ThemeLibrary::iconFor(const std::string& themeID, const std::string& bundleID,
                                             const std::set<std::string>& hidden) const {
    const auto folder = plainIconsOf(themeID);
    if (!folder)
        return std::nullopt;
    for (const std::string_view extension : kThemeIconExtensions) {
        const auto name = themeIconName(bundleID, extension);
        if (!name || hidden.contains(*name))
            continue;
        MacPath file = *folder / *name;
        if (isPlainFile(m_files, file))
            return file;
    }
    return std::nullopt;
}

Status ThemeLibrary::writeIcon(const std::string& themeID, const std::string& bundleID, ByteView png) {
    const std::lock_guard lock(m_changing);
    const auto folder = plainIconsOf(themeID);
    if (!folder)
        return folder.error();
    const auto name = themeIconName(bundleID);
    if (!name)
        return name.error();
    // A theme that is gone does not come back as a folder without a record.
    if (const auto present = m_files.attributes(folder->parent(), Links::dontFollow); !present)
        return present.error();
    if (Status made = createPlainFolder(m_files, m_supportFolder, *folder); !made)
        return made;
    return writeAtomically(m_files, *folder / *name, png);
}

Status ThemeLibrary::renameIcon(const std::string& themeID, const std::string& fileName,
                                const std::string& newBundleID) {
    const std::lock_guard lock(m_changing);
    const auto folder = plainIconsOf(themeID);
    if (!folder)
        return folder.error();
    const auto bundleID = bundleIDOfIcon(fileName);
    if (!bundleID || !isPlainFile(m_files, *folder / fileName))
        return Error{"The theme has no icon “" + fileName + "”", ENOENT};
    const auto newName = themeIconName(newBundleID, std::string_view(fileName).substr(bundleID->size()));
    if (!newName)
        return newName.error();
    if (newBundleID == *bundleID)
        return Done{};
    // Of two formats one would hide the other.
    for (const std::string_view extension : kThemeIconExtensions) {
        const auto taken =
            m_files.attributes(*folder / (newBundleID + std::string(extension)), Links::dontFollow);
        if (taken)
            return Error{"The theme has an icon for “" + newBundleID + "” already", EEXIST};
        if (taken.error().code != ENOENT)
            return taken.error();
    }
    const Status moved = m_files.move(*folder / fileName, *folder / *newName);
    return moved ? m_files.flush(*folder) : moved;
}

Status ThemeLibrary::removeIcon(const std::string& themeID, const std::string& fileName) {
    const std::lock_guard lock(m_changing);
    const auto folder = plainIconsOf(themeID);
    if (!folder)
        return folder.error();
    if (!bundleIDOfIcon(fileName))
        return Error{"“" + fileName + "” is no icon of a theme", EINVAL};
    const MacPath file = *folder / fileName;
    const auto present = m_files.attributes(file, Links::dontFollow);
    if (!present)
        return present.error().code == ENOENT ? Done{} : Status(present.error());
    if (present->type == FileType::folder)
        return Error{file.string() + " is a folder", EISDIR};
    const Status removed = m_files.remove(file);
    return removed ? m_files.flush(*folder) : removed;
}

} // namespace tavrik
