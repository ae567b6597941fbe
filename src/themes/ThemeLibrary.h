#pragma once

#include "platform/Bytes.h"
#include "platform/Path.h"
#include "platform/Result.h"
#include "themes/Theme.h"
#include "themes/ThemeIconName.h"

#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tavrik {

class FileManager;
struct Mac;

/// An icon of a theme: a file named by its application's bundle identifier.
struct ThemeIcon {
    std::string bundleID;
    MacPath file; ///< "<bundle identifier>.png" or ".icns"

    bool operator==(const ThemeIcon&) const = default;
};

/// The themes on disk, a folder for each in "Themes" of the support folder: "Info.plist" and the folder
/// "Icons". The one place that makes, renames and removes anything there. Names become paths only when they are
/// safe; a folder that is a symbolic link is never read, written or removed through.
///
/// Every change is one step on disk: a theme appears and goes whole, an icon is the old one or the new one. A
/// kill leaves at worst a folder ".new-<id>" or ".deleted-<id>" or a file with ".new" at its end, which count
/// as nothing and which `removeLeftovers` removes. A failure leaves the old state, unless the flush of a folder
/// fails after its change: that one may stand then. Blocks on the disk; any thread; changes take turns.
class ThemeLibrary {
public:
    explicit ThemeLibrary(Mac& mac);

    const MacPath& path() const { return m_path; }

    /// Only of ids: nothing is checked here.
    MacPath folderOf(const std::string& themeID) const { return m_path / themeID; }

    MacPath iconsOf(const std::string& themeID) const { return folderOf(themeID) / "Icons"; }

    Status createFolder();

    /// The themes whose record can be read, in byte order of their folders. Logs as it goes.
    std::vector<Theme> load() const;

    /// Makes a theme with these icons: PNG or ICNS content by file name. There whole, or not at all. An id that
    /// is in use is refused.
    Status create(const Theme& theme, const std::map<std::string, Bytes>& icons = {});

    /// Replaces the record. An error when there is no such theme.
    Status update(const Theme& theme);

    /// By bundle identifier; of both formats the PNG.
    std::vector<ThemeIcon> icons(const std::string& themeID) const;

    /// The file to show for an application, the hidden ones passed over: the PNG, else the ICNS.
    std::optional<MacPath> iconFor(const std::string& themeID, const std::string& bundleID,
                                   const std::set<std::string>& hidden) const;

    /// Writes "<bundle identifier>.png", complete and flushed; an earlier one is replaced.
    Status writeIcon(const std::string& themeID, const std::string& bundleID, ByteView png);

    /// Gives an icon to another application. The extension stays. Refused in a sentence when there is no such
    /// icon, the new name is no possible one, or the theme has an icon for that application, in either format.
    Status renameIcon(const std::string& themeID, const std::string& fileName, const std::string& newBundleID);

    /// Both are fine when there is none; a name that cannot be one is refused. For the apply of staged
    /// deletions. A theme is gone when its folder has another name; what cannot be removed of it then is a
    /// leftover.
    Status removeIcon(const std::string& themeID, const std::string& fileName);
    Status remove(const std::string& themeID);

    /// What a kill left. To be called at the start of a program that may write.
    void removeLeftovers();

private:
    /// A theme's folder, or that of its icons, there or not, when no link stands in the way.
    Result<MacPath> plainFolderOf(const std::string& themeID) const;
    Result<MacPath> folderFor(const Theme& theme) const;
    Result<MacPath> plainIconsOf(const std::string& themeID) const;
    Result<Theme> read(const MacPath& record, const std::string& folderName) const;
    Status fill(const MacPath& folder, const Theme& theme, const std::map<std::string, Bytes>& icons);
    Status moveAway(const std::string& themeID);

    FileManager& m_files;
    const MacPath m_supportFolder;
    const MacPath m_path;
    std::mutex m_changing; ///< held while something is changed
};

} // namespace tavrik
