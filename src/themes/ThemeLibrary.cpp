#include "themes/ThemeLibrary.h"

#include "model/SettingsManager.h"
#include "platform/AtomicFile.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/PlainFolders.h"
#include "themes/ThemeError.h"

#include <cerrno>
#include <utility>

namespace tavrik {

namespace {

constexpr std::string_view kRecord = "Info.plist";

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

// Themes

/// Where a record may be written; an error for one that could not be read again.
Result<MacPath> ThemeLibrary::folderFor(const Theme& theme) const {
    auto folder = plainFolderOf(theme.themeID);
    if (folder && !isValidThemeName(theme.name))
        return errorOf(ThemeError::invalidThemeName);
    return folder;
}

Status ThemeLibrary::create(const Theme& theme, const std::map<std::string, Bytes>& icons) {
    const std::lock_guard lock(m_changing);
    const auto folder = folderFor(theme);
    if (!folder)
        return folder.error();
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
    const auto folder = folderFor(theme);
    if (!folder)
        return folder.error();
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
