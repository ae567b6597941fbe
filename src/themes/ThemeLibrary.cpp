#include "themes/ThemeLibrary.h"

#include "model/SettingsManager.h"
#include "platform/AtomicFile.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/PathComponent.h"
#include "platform/PlainFolders.h"
#include "themes/ThemeError.h"

#include <array>
#include <cerrno>
#include <utility>

namespace tavrik {

namespace {

constexpr std::string_view kRecord = "Info.plist";
constexpr std::string_view kPng = ".png";
constexpr std::array kExtensions{kPng, std::string_view(".icns")}; ///< the preferred one first

/// Before the id, in the names of folders that are being made or removed.
constexpr std::string_view kUnfinished = ".new-";
constexpr std::string_view kGone = ".deleted-";

/// Behind the name of a file that is being written.
constexpr std::string_view kUnwritten = ".new";

bool isOfType(const FileManager& files, const MacPath& path, FileType type) {
    const auto present = files.attributes(path, Links::dontFollow);
    return present && present->type == type;
}

Status removeIfPresent(FileManager& files, const MacPath& path) {
    const Status removed = files.remove(path);
    return removed || removed.error().code == ENOENT ? Status(Done{}) : removed;
}

/// A new file on stable storage, its folder aside.
Status createFlushed(FileManager& files, const MacPath& file, ByteView content) {
    const Status created = files.create(file, content);
    return created ? files.flush(file) : created;
}

Result<std::string> iconName(const std::string& bundleID, std::string_view extension) {
    std::string name = bundleID + std::string(extension);
    if (bundleIDOfIcon(name) != bundleID)
        return Error{"“" + bundleID + "” cannot name an icon", EINVAL};
    return name;
}

std::string_view extensionOf(const std::string& iconName) {
    return iconName.ends_with(kPng) ? kExtensions.front() : kExtensions.back();
}

/// What killed writes left in a folder of files whose names `isOurs` knows.
template<typename Known>
void removeUnwritten(FileManager& files, const MacPath& folder, Known&& isOurs) {
    const auto names = files.list(folder);
    for (const std::string& name : names ? *names : std::vector<std::string>()) {
        if (name.ends_with(kUnwritten) && isOurs(name.substr(0, name.size() - kUnwritten.size())) &&
            isOfType(files, folder / name, FileType::file))
            ignoreFailure(files.remove(folder / name));
    }
}

} // namespace

std::optional<std::string> bundleIDOfIcon(const std::string& fileName) {
    if (!isSafePathComponent(fileName) || fileName.starts_with('.'))
        return std::nullopt;
    for (const std::string_view extension : kExtensions) {
        if (fileName.ends_with(extension))
            return fileName.substr(0, fileName.size() - extension.size());
    }
    return std::nullopt;
}

ThemeLibrary::ThemeLibrary(Mac& mac)
    : m_files(mac.files),
      m_supportFolder(supportFolder(mac.volume)),
      m_path(m_supportFolder / "Themes") {}

Result<MacPath> ThemeLibrary::plainFolderOf(const std::string& themeID) const {
    if (!isThemeID(themeID))
        return Error{"“" + themeID + "” is no theme", EINVAL};
    const Status plain = checkPlainFolders(m_files, m_supportFolder, folderOf(themeID));
    return plain ? folderOf(themeID) : Result<MacPath>(plain.error());
}

Result<MacPath> ThemeLibrary::plainIconsOf(const std::string& themeID) const {
    const auto theme = plainFolderOf(themeID);
    if (!theme)
        return theme.error();
    const Status plain = checkPlainFolders(m_files, *theme, iconsOf(themeID));
    return plain ? iconsOf(themeID) : Result<MacPath>(plain.error());
}

Status ThemeLibrary::createFolder() {
    return createPlainFolder(m_files, m_supportFolder, m_path);
}

// Reading

std::vector<Theme> ThemeLibrary::load() const {
    const auto present = m_files.attributes(m_path, Links::dontFollow);
    if (!present && present.error().code == ENOENT) {
        log("Themes directory does not exist at: " + m_path.string());
        return {};
    }
    if (present && present->type != FileType::folder) {
        log("Themes path exists but is not a directory: " + m_path.string());
        return {};
    }
    const Status plain = checkPlainFolders(m_files, m_supportFolder, m_path);
    const auto names = plain ? m_files.list(m_path) : plain.error();
    if (!names) {
        log("Error loading themes: " + names.error().description);
        return {};
    }
    log(std::to_string(names->size()) + " items in themes directory");

    std::vector<Theme> themes;
    for (const std::string& name : *names) {
        const MacPath record = m_path / name / kRecord;
        if (name.starts_with('.') || !isOfType(m_files, m_path / name, FileType::folder) ||
            !isOfType(m_files, record, FileType::file))
            continue;
        if (auto theme = read(record, name))
            themes.push_back(std::move(*theme));
        else
            log("Skipping the theme in " + name + ": " + theme.error().description);
    }
    return themes;
}

Result<Theme> ThemeLibrary::read(const MacPath& record, const std::string& folderName) const {
    const auto content = m_files.read(record, kLargestThemeRecord);
    if (!content)
        return content.error();
    auto theme = decodeTheme(*content);
    if (theme && theme->themeID != folderName)
        return errorOf(ThemeError::invalidThemeFormat, "its record is that of " + theme->themeID);
    return theme;
}

std::vector<ThemeIcon> ThemeLibrary::icons(const std::string& themeID) const {
    const auto folder = plainIconsOf(themeID);
    const auto names = folder ? m_files.list(*folder) : folder.error();
    std::map<std::string, MacPath> found;
    for (const std::string& name : names ? *names : std::vector<std::string>()) {
        const auto bundleID = bundleIDOfIcon(name);
        const MacPath file = *folder / name;
        if (!bundleID || !isOfType(m_files, file, FileType::file))
            continue;
        if (name.ends_with(kPng))
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
    for (const std::string_view extension : kExtensions) {
        const auto name = iconName(bundleID, extension);
        if (!name || hidden.contains(*name))
            continue;
        MacPath file = *folder / *name;
        if (isOfType(m_files, file, FileType::file))
            return file;
    }
    return std::nullopt;
}

// Themes

Status ThemeLibrary::create(const Theme& theme, const std::map<std::string, Bytes>& icons) {
    const std::lock_guard lock(m_changing);
    const auto folder = plainFolderOf(theme.themeID);
    if (!folder)
        return folder.error();
    if (!isValidThemeName(theme.name))
        return errorOf(ThemeError::invalidThemeName);
    if (Status made = createFolder(); !made)
        return made;

    // Whole under another name first.
    const MacPath fresh = m_path / (std::string(kUnfinished) + theme.themeID);
    if (Status cleared = removeIfPresent(m_files, fresh); !cleared)
        return cleared;
    Status done = fill(fresh, theme, icons);
    if (done)
        done = m_files.move(fresh, *folder);
    if (!done) {
        ignoreFailure(m_files.remove(fresh));
        return done;
    }
    done = m_files.flush(m_path);
    if (!done)
        ignoreFailure(moveAway(theme.themeID));
    return done;
}

Status ThemeLibrary::fill(const MacPath& folder, const Theme& theme,
                          const std::map<std::string, Bytes>& icons) {
    const auto record = encodeTheme(theme);
    if (!record)
        return record.error();
    const MacPath iconFolder = folder / "Icons";
    if (Status made = m_files.createFolder(iconFolder); !made)
        return made;
    for (const auto& [fileName, content] : icons) {
        if (!bundleIDOfIcon(fileName))
            return Error{"“" + fileName + "” cannot name an icon", EINVAL};
        if (Status created = createFlushed(m_files, iconFolder / fileName, content); !created)
            return created;
    }
    if (Status created = createFlushed(m_files, folder / kRecord, *record); !created)
        return created;
    const Status flushed = m_files.flush(iconFolder);
    return flushed ? m_files.flush(folder) : flushed;
}

Status ThemeLibrary::update(const Theme& theme) {
    const std::lock_guard lock(m_changing);
    const auto folder = plainFolderOf(theme.themeID);
    if (!folder)
        return folder.error();
    if (!isValidThemeName(theme.name))
        return errorOf(ThemeError::invalidThemeName);
    const auto record = encodeTheme(theme);
    return record ? writeAtomically(m_files, *folder / kRecord, *record) : record.error();
}

Status ThemeLibrary::remove(const std::string& themeID) {
    const std::lock_guard lock(m_changing);
    const auto folder = plainFolderOf(themeID);
    return folder ? moveAway(themeID) : folder.error();
}

Status ThemeLibrary::moveAway(const std::string& themeID) {
    const MacPath gone = m_path / (std::string(kGone) + themeID);
    if (Status cleared = removeIfPresent(m_files, gone); !cleared)
        return cleared;
    if (Status moved = m_files.move(folderOf(themeID), gone); !moved)
        return moved.error().code == ENOENT ? Done{} : moved;
    if (Status flushed = m_files.flush(m_path); !flushed)
        return flushed;
    ignoreFailure(m_files.remove(gone)); // the theme is gone already
    return Done{};
}

// Icons

Status ThemeLibrary::writeIcon(const std::string& themeID, const std::string& bundleID, ByteView png) {
    const std::lock_guard lock(m_changing);
    const auto folder = plainIconsOf(themeID);
    if (!folder)
        return folder.error();
    const auto name = iconName(bundleID, kPng);
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
    if (!bundleID || !isOfType(m_files, *folder / fileName, FileType::file))
        return Error{"The theme has no icon “" + fileName + "”", ENOENT};
    const auto newName = iconName(newBundleID, extensionOf(fileName));
    if (!newName)
        return newName.error();
    if (newBundleID == *bundleID)
        return Done{};
    // Of two formats one would hide the other.
    for (const std::string_view extension : kExtensions) {
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
    const Status removed = removeIfPresent(m_files, file);
    return removed ? m_files.flush(*folder) : removed;
}

void ThemeLibrary::removeLeftovers() {
    const std::lock_guard lock(m_changing);
    if (!checkPlainFolders(m_files, m_supportFolder, m_path))
        return;
    const auto names = m_files.list(m_path);
    for (const std::string& name : names ? *names : std::vector<std::string>()) {
        for (const std::string_view prefix : {kUnfinished, kGone}) {
            if (name.starts_with(prefix) && isThemeID(std::string_view(name).substr(prefix.size())))
                ignoreFailure(m_files.remove(m_path / name));
        }
        if (const auto theme = plainFolderOf(name))
            removeUnwritten(m_files, *theme, [](const std::string& file) { return file == kRecord; });
        if (const auto icons = plainIconsOf(name))
            removeUnwritten(m_files, *icons, [](const std::string& file) { return bundleIDOfIcon(file); });
    }
}

} // namespace tavrik
