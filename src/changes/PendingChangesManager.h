#pragma once

#include "changes/AppliedIcons.h"
#include "changes/IconRow.h"
#include "changes/RecoveryFile.h"
#include "changes/StagedChanges.h"
#include "platform/Path.h"
#include "platform/Result.h"

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tavrik {

class Clock;
class FileManager;
class FontReplacer;
class IconStore;
class IconTransfer;
class NotificationCenter;
class SettingsManager;
struct Mac;

/// Notifications that it posts.
inline constexpr std::string_view kPendingChangesUpdated = "PendingChangesUpdated";

/// Owner of everything that is staged and of its mirror on disk, the recovery file
/// "PendingChanges/pendingChanges.plist". Nothing here touches the system: staging is undone by staging the
/// opposite or by discarding all.
///
/// Main thread only, and it blocks on the disk for a file of a few kilobytes. Each staging operation returns
/// when the recovery file is on stable storage, or has logged why it is not; what is in memory stays the
/// authority then, and the next operation writes all of it again. The file is there exactly while something is
/// staged, and is replaced in one step: a kill leaves the state before the operation or the state after it.
/// Pending icon files are written before and removed after the file that names them, so the worst that a kill
/// or a failed write leaves is an icon file that nothing names; `recover` removes such files.
///
/// A recovery file of an earlier session that could not be recovered is put aside before the first write.
class PendingChangesManager {
public:
    PendingChangesManager(Mac& mac, SettingsManager& settings, const FontReplacer& fonts, IconStore& store,
                          IconTransfer& transfer, NotificationCenter& notifications);

    /// Texts for the progress of an apply.
    static const std::array<std::string_view, 6> magicPhrases;

    bool hasPendingChanges() const { return m_hasPendingChanges; }

    /// Whether a styled alphabet is in effect.
    bool hasActiveFonts() const { return m_activeFont.has_value(); }

    const std::optional<std::string>& activeFont() const { return m_activeFont; }

    const StagedChanges& staged() const { return m_staged; }

    const MacPath& tavrikAppsURL() const { return m_tavrikAppsURL; }

    const MacPath& tempFileURL() const { return m_file.path(); }

    const MacPath& pendingChangesBaseURL() const { return m_pendingChangesBaseURL; }

    const MacPath& pendingIconsBaseURL() const;

    /// The icons of an application as they would be shown now. Reads its folder. While nothing is staged for
    /// it, a selection in the settings that is no permanent icon's number counts as -1.
    IconRow iconRow(const std::string& bundleID) const;
    /// The same with other changes in the place of those that are staged here.
    IconRow iconRow(const std::string& bundleID, const StagedChanges& changes) const;

    /// An icon that the store has just saved: it comes last in the row and is chosen. A path that is not a
    /// pending icon of this application, or is not there, is refused.
    bool addIcon(const std::string& bundleID, const MacPath& pendingIcon);
    /// The same for many applications at once: one write of the recovery file, one notification. An icon that
    /// the application's row shows already is chosen where it stands. What is refused is logged and left out;
    /// the others are staged. Returns how many were.
    std::size_t addIcons(const std::map<std::string, MacPath>& icons);
    /// The icon at this place of the row. A pending one is deleted at once, a permanent one when the changes
    /// are applied. The choice stays with its icon; when that is the removed one, the application's own is
    /// chosen.
    bool removeIcon(const std::string& bundleID, int displayIndex);
    /// A place in the row or behind it among the theme icons offered, how many there are the caller knows;
    /// nothing = the application's own icon.
    bool selectIcon(const std::string& bundleID, std::optional<int> index);

    /// Names that cannot be a file's are refused with a log line, here and below. Staging twice is fine.
    void hideThemeIcon(const std::string& themeID, const std::string& iconFileName);
    /// Takes a staged hide back.
    void unhideThemeIcon(const std::string& themeID, const std::string& iconFileName);
    void deleteThemeIcon(const std::string& themeID, const std::string& iconFileName);
    /// Takes a staged deletion back; nothing happens when there is none.
    void keepThemeIcon(const std::string& themeID, const std::string& iconFileName);
    void deleteTheme(const std::string& themeID);
    /// Takes a staged deletion back; nothing happens when there is none.
    void keepTheme(const std::string& themeID);

    /// A font and a reset exclude each other: staging one takes the other back. Nothing takes the font back. A
    /// name that is no style's is refused.
    void setPendingFont(const std::optional<std::string>& font);
    void setPendingReset(bool reset);

    /// Records what an application's row has become. Its entry is dropped when that is what is applied. A path
    /// that is not its pending icon's and a number of no permanent icon are left out, each with a log line.
    void updatePendingState(const std::string& bundleID, const std::vector<MacPath>& pendingPaths,
                            const std::set<int>& hiddenIndices, std::optional<int> selectedIndex);

    /// Puts other changes in the place of all that are staged: an earlier state of these. What they name and is
    /// not there any more is left out, each with a log line. False, with nothing changed, when the disk does
    /// not tell what is there. Interrupted applies stay noted.
    bool restage(const StagedChanges& changes);

    /// From now on removed icons that were not applied yet stay on disk, so that `restage` can bring them back.
    /// Nothing names them, and `dropIcons` or the next `recover` deletes them.
    void keepRemovedIcons() { m_keepsRemovedIcons = true; }

    /// Deletes those of these pending icons that nothing staged names.
    void dropIcons(const std::set<MacPath>& icons);

    /// Writes what is staged to the recovery file, or removes the file when nothing is. Every operation above
    /// does it; an apply does it again and must not begin unless it is true.
    bool savePendingChangesToTempFile();

    /// Whether the recovery file holds anything. Changes nothing.
    bool hasRecoverableChanges() const;
    /// Takes the staged changes from the recovery file. To be called before anything is staged, also when there
    /// is no file, since it removes the pending icons that nothing names. Icons that an interrupted apply had
    /// moved are found where they are now, and what is missing or not to be trusted is left out, each with a
    /// log line. False when the file is missing, or cannot be read or checked to the end; it is left as it is
    /// then, and nothing is staged. Safe to repeat after a kill at any moment.
    bool recover();

    /// What was staged has been applied: it is dropped with the recovery file and the record of the transfer,
    /// and the styled alphabet in effect is read anew. Icons that could not be moved to the permanent ones, or
    /// were added meanwhile, stay staged. Unlike a discard it removes no icon: one may just have been saved.
    void noteApplied();

    /// Drops everything that is staged, the pending icons and the recovery file: the person does not want it.
    /// Not for the end of an apply. When the file cannot be removed, it and the icons that it names stay on
    /// disk.
    void clearAllPendingChanges();

    /// A backup took the place of what was applied: the styled alphabet in effect and the icons in use are read
    /// anew.
    void noteRestored();

private:
    bool isSavedIconOf(const MacPath& path, const std::string& bundleID) const;
    void recordIcon(const std::string& bundleID, const MacPath& icon);
    void recordRow(const std::string& bundleID, const std::vector<MacPath>& pendingPaths,
                   const std::set<int>& hiddenIndices, std::optional<int> selectedIndex);
    bool stageRow(const std::string& bundleID, const std::vector<MacPath>& pendingPaths,
                  const std::set<int>& hiddenIndices, std::optional<int> selectedIndex);
    bool updatePendingChangesState();
    void updateFlags();
    void readActiveFont();
    void finishTransfer();
    bool takeOverFile();
    enum class PendingIcons { keep, cleanUp };
    void clear(PendingIcons icons);
    Result<bool> followTransfer(const std::string& bundleID, const std::vector<MacPath>& shown,
                                IconChange& change);
    Status recoverRows(StagedChanges& recovered) const;
    Status recoverRow(const std::string& bundleID, StagedChanges& recovered) const;
    void sweep();
    bool isPendingIconOf(const MacPath& path, const std::string& bundleID) const;

    FileManager& m_files;
    Clock& m_clock;
    SettingsManager& m_settings;
    const FontReplacer& m_fonts;
    IconStore& m_store;
    IconTransfer& m_transfer;
    NotificationCenter& m_notifications;

    bool m_hasPendingChanges = false;
    bool m_keepsRemovedIcons = false;
    bool m_isInitializing = true; ///< nothing is saved while it is set
    StagedChanges m_staged;
    std::optional<std::string> m_activeFont;
    MacPath m_tavrikAppsURL;
    MacPath m_pendingChangesBaseURL;
    RecoveryFile m_file;
    bool m_isFileOurs = false;     ///< what the file says was taken in, given up, or written by this object
    bool m_recoveryFailed = false; ///< the file may be good, but was not taken in
    /// What is to be done about the record of a transfer with the next successful write.
    enum class Transfer { none, followed, over };
    Transfer m_interruptedTransfer = Transfer::none;
    mutable AppliedIcons m_applied;
};

} // namespace tavrik
