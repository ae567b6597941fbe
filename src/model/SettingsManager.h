#pragma once

#include "model/SettingsRecords.h"
#include "model/SettingsStore.h"
#include "platform/Path.h"
#include "platform/PropertyList.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tavrik {

class Clock;
class Volume;
struct Mac;

/// The identifier that names the support folder when the program runs without a bundle.
inline constexpr std::string_view kFallbackBundleIdentifier = "com.tavrik.Tavrik";

/// The folder below the user's Application Support that holds everything the program keeps.
MacPath supportFolder(const Volume& volume);

/// Owner of "AppSettings.plist" and of every key in it; the other modules read and write through its typed
/// operations only.
///
/// Every setter reads the whole file, changes one entry, keeps all others untouched, and writes the whole file
/// through a temporary, a flush and an atomic replace, after the previous content went to "AppSettings.backup".
/// No operation reports an error: failures are logged, and the file then holds what it held before. Getters are
/// served from memory after the first read. Any thread; a setter blocks on the disk, and setters take turns.
///
/// A kill at any moment leaves "AppSettings.plist" old or new, never cut; it may leave "AppSettings.tmp", which
/// the next save replaces.
class SettingsManager {
public:
    /// A program that may look but not write, because another one holds the support folder's lock, is read-only
    /// from its first look on: setters change nothing and say nothing, and loading repairs nothing.
    enum class Use { writing, looking };
    explicit SettingsManager(Mac& mac, Use use = Use::writing);

    /// The same from now on.
    void setReadOnly() { m_store.setReadOnly(); }

    const MacPath& appSupportURL() const { return m_appSupportURL; }

    const MacPath& iconCacheURL() const { return m_iconCacheURL; }

    /// From the disk, the cache left alone. An empty dictionary at worst.
    plist::Dictionary loadSettings();
    /// Writes the whole and drops the cache. An empty dictionary is refused.
    void saveSettings(const plist::Dictionary& settings);
    /// Fills the cache unless it is filled, so that the next getter does not touch the disk.
    void preloadSettings();
    void dropCache();
    /// Takes an entry out of the dictionary at `key`; fine when it is not there.
    void removeEntry(std::string_view subkey, std::string_view key);

    void saveMapping(const std::string& bundleID, RowID originalRowID, RowID tavrikRowID);
    /// The same where the swap is all that there was to do: its record goes in the same write.
    void saveMappingAndEndSwap(const std::string& bundleID, RowID originalRowID, RowID tavrikRowID);
    std::optional<TavrikMapping> getMapping(const std::string& bundleID);
    std::map<std::string, TavrikMapping> getAllMappings();
    void removeMapping(const std::string& bundleID);

    /// Nothing removes the application's entry.
    void setSelectedIcon(const std::string& bundleID, std::optional<std::int64_t> index);
    /// Of several applications, in one write.
    void setSelectedIcons(const std::map<std::string, std::optional<std::int64_t>>& indices);
    std::optional<std::int64_t> getSelectedIcon(const std::string& bundleID);
    std::map<std::string, std::int64_t> getAllSelectedIcons();

    /// `appliedDate` is set to now. Nothing removes the key. For when the titles show this style already: a
    /// change of style that was under way is forgotten.
    void setCurrentFontState(const std::optional<FontState>& state);
    std::optional<FontState> getCurrentFontState();

    /// Records the style before the titles are changed to it, as `setCurrentFontState` does, and in the same
    /// write notes the style that they show until then. Returns true when both are on disk.
    [[nodiscard]] bool beginFontChange(const std::optional<FontState>& state);
    /// The styles that titles may still show beside the current one, the oldest first; plain text is "". Empty
    /// unless a change began and did not end: it was killed, or the titles could not be written.
    std::vector<std::string> getUnfinishedFontChange();
    void endFontChange();

    /// A merge: what is not given keeps its stored value. `lastGoodFont` counts only together with `lastGood`.
    void saveFolderBackup(RowID folderID, const std::optional<std::string>& original,
                          const std::optional<std::string>& lastGood,
                          const std::optional<std::string>& lastGoodFont);
    /// The same for many in one write of the file; the dates of the records are not read. Returns true when
    /// they are on disk; nothing is written when there are none.
    [[nodiscard]] bool saveFolderBackups(const std::map<RowID, FolderBackup>& backups);
    std::optional<FolderBackup> getFolderBackup(RowID folderID);
    std::map<RowID, FolderBackup> getAllFolderBackups();
    void removeFolderBackup(RowID folderID);
    /// The same for many in one write of the file; nothing is written when there are none.
    void removeFolderBackups(const std::vector<RowID>& folderIDs);

    void saveDockBookmark(const DockBookmark& bookmark);
    std::optional<DockBookmark> getDockBookmark(const std::string& bundleID);
    void removeDockBookmark(const std::string& bundleID);

    void setIconShape(const std::string& key, const plist::Value& result);
    /// The same for many in one write of the file; nothing is written when there are none.
    void setIconShapes(const std::map<std::string, plist::Value>& results);
    std::optional<plist::Value> getIconShape(const std::string& key);
    void clearIconShapeCache();

    void saveHiddenFlagApp(const std::string& bundleID, std::int64_t originalFlags, RowID originalRowID,
                           std::optional<RowID> tavrikRowID, bool wasHiddenFlag);
    /// The same for many, each with its line in the order given, in one write of the file; nothing is written
    /// when there are none. `lastSeenDate` of the records is not read.
    void saveHiddenFlagApps(const std::vector<std::pair<std::string, HiddenFlagApp>>& apps);
    std::optional<HiddenFlagApp> getHiddenFlagApp(const std::string& bundleID);
    std::map<std::string, HiddenFlagApp> getAllHiddenFlagApps();

    void setBackupRetentionCount(std::int64_t count);
    std::int64_t getBackupRetentionCount();

    /// Returns true when the record is on disk.
    [[nodiscard]] bool saveSwapRecord(const std::string& bundleID, const SwapRecord& record);
    std::optional<SwapRecord> getSwapRecord(const std::string& bundleID);
    std::map<std::string, SwapRecord> getAllSwapRecords();
    void removeSwapRecord(const std::string& bundleID);

    /// Of an application that is gone: forgets its mapping, the record of its swap and that of its hidden row,
    /// in one write.
    void forgetSwap(const std::string& bundleID);

    /// After a backup's files took the place of the live ones, or everything was taken back: forgets, in one
    /// write, every mapping, selected icon and hidden-flag application, the style with its unfinished change,
    /// the records of swaps, and the Dock bookmarks but those to be kept. Returns true when that is on disk.
    [[nodiscard]] bool clearAfterRestore(const std::set<std::string>& dockBookmarksToKeep);

private:
    template<typename Record>
    std::optional<Record> entry(std::string_view key, std::string_view subkey);
    template<typename Record>
    std::map<std::string, Record> entries(std::string_view key);

    Clock& m_clock;
    MacPath m_appSupportURL;
    MacPath m_iconCacheURL;
    SettingsStore m_store;
};

} // namespace tavrik
