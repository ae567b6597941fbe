#pragma once

#include "icons/IconMoves.h"
#include "platform/Bytes.h"
#include "platform/Path.h"
#include "platform/Result.h"

#include <QImage>

#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tavrik {

class FileManager;
class IconCache;
class SettingsManager;

/// A picture as the store keeps it.
struct IconPicture {
    QImage image;
    Bytes png; ///< the file's content: equal pictures have equal bytes
};

/// The icon files of every application: the permanent ones in "IconCache", the pending ones in
/// "PendingChanges/Icons" of the support folder, a folder for each bundle identifier. The one place that makes,
/// renames and removes icon files.
///
/// Operations run on the caller's thread and block on the disk; two on the same application must take turns,
/// except that pending icons may be saved beside anything. No operation throws or reports more than an empty
/// answer; failures are logged. An identifier that is no safe folder name, and a folder that is a symbolic
/// link, are refused everywhere: nothing is read, written or removed there.
class IconStore {
public:
    IconStore(FileManager& files, const SettingsManager& settings, IconCache& cache);

    const MacPath& iconCacheURL() const { return m_iconCacheURL; }

    const MacPath& pendingIconsBaseURL() const { return m_pendingIconsBaseURL; }

    /// Writes the picture as the next pending icon and puts it into the cache. The file is complete and on
    /// stable storage when its path is returned; nothing after a failure, with no file left. A kill leaves the
    /// icon, nothing, or a file with ".new" at its end, which counts as no icon. Never overwrites.
    std::optional<MacPath> savePendingIcon(const QImage& image, const std::string& bundleID);
    std::optional<MacPath> savePendingIcon(const IconPicture& picture, const std::string& bundleID);

    /// Nothing, with a log line, when the picture cannot be written as PNG. Pure; any thread.
    static std::optional<IconPicture> iconPicture(const QImage& image);

    /// One above the highest number in either folder; 0 when there is none.
    int nextAvailableIndex(const std::string& bundleID) const;

    /// The permanent icons by number. A missing folder holds none.
    std::vector<MacPath> listIcons(const std::string& bundleID) const;
    /// The same of the pending folder, without a log line.
    std::vector<MacPath> listPendingIcons(const std::string& bundleID) const;
    /// Both together, the permanent ones first, with an error instead of a log line.
    Result<std::vector<MacPath>> listAllIcons(const std::string& bundleID) const;

    /// Removes the permanent icon at this place of the list, with its thumbnails, and renumbers the others
    /// without a gap. Nothing outside 0 to count - 1. A kill leaves every other icon, in its order.
    void deleteIconAndReindex(const std::string& bundleID, int index);

    /// Gives the permanent icons the numbers from 0 on in their order; "temp_icon_3.png" of an interrupted
    /// renumbering counts as number 3. Returns the icons afterwards. A kill leaves all icons, in their order.
    std::vector<MacPath> renumber(const std::string& bundleID);

    /// Removes the permanent icon of this number with its thumbnails. True when it is gone.
    bool deletePermanentIcon(const std::string& bundleID, int index);

    /// Removes a pending icon and its thumbnails, and drops it from the cache. A path that is not a pending
    /// icon's is refused.
    void deletePendingIcon(const MacPath& path);

    /// Moves a pending icon with its thumbnails into the permanent folder, under its own number, or the next
    /// one above all that are there when its own is taken or below them, so that it comes last. Where it stands
    /// then; nothing when it could not be moved and is where it was.
    std::optional<MacPath> transferPendingIcon(const MacPath& path, const std::string& bundleID);

    /// Removes an application's pending folder with all that is in it, or all such folders. The next save makes
    /// what is missing.
    void cleanUpPendingIcons(const std::string& bundleID);
    void cleanUpAllPendingIcons();

    /// Removes the application's pending folder when no icon is left in it. True when it did.
    bool removePendingFolderIfEmpty(const std::string& bundleID);

    /// Removes from the pending folders of all applications every icon that is not named, with its thumbnails,
    /// what a killed write left, links, and the folders that are empty then. Other files stay.
    void removeUnnamedPendingIcons(const std::set<MacPath>& named);

    /// Whether the path is exactly that of an icon of this application in one of the two folders.
    bool ownsPath(const MacPath& path, const std::string& bundleID) const;

private:
    Result<MacPath> safeFolder(const MacPath& base, const std::string& bundleID) const;
    Result<std::vector<NumberedIcon>> icons(const MacPath& base, const std::string& bundleID) const;
    bool removePendingFolder(const std::string& bundleID);

    FileManager& m_files;
    IconCache& m_cache;
    const MacPath m_appSupportURL;
    const MacPath m_iconCacheURL;
    const MacPath m_pendingIconsBaseURL;
    std::mutex m_pendingLock; ///< held while the pending folders change
};

} // namespace tavrik
