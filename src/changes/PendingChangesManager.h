#pragma once

#include "changes/IconRow.h"
#include "changes/StagedChanges.h"
#include "platform/Path.h"

#include <array>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tavrik {

class Clock;
class FileManager;
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
/// Main thread only. Each staging operation returns when the recovery file is on stable storage, or has logged
/// why it is not; what is in memory stays the authority then, and the next operation writes all of it again.
/// The file is there exactly while something is staged, and is replaced in one step: a kill leaves the state
/// before the operation or the state after it. Pending icon files are written before and removed after the file
/// that names them, so the worst that a kill leaves is an icon file that nothing names; `recover` removes such
/// files.
class PendingChangesManager {
public:
    PendingChangesManager(Mac& mac, SettingsManager& settings, IconStore& store, IconTransfer& transfer,
                          NotificationCenter& notifications);

    /// Texts for the progress of an apply.
    static const std::array<std::string_view, 6> magicPhrases;

    bool hasPendingChanges() const { return m_hasPendingChanges; }

    /// Whether a styled alphabet is in effect.
    bool hasActiveFonts() const { return m_activeFont.has_value(); }

    const std::optional<std::string>& activeFont() const { return m_activeFont; }

    const StagedChanges& staged() const { return m_staged; }

    const MacPath& tavrikAppsURL() const { return m_tavrikAppsURL; }

    const MacPath& tempFileURL() const { return m_tempFileURL; }

    const MacPath& pendingChangesBaseURL() const { return m_pendingChangesBaseURL; }

    /// The icons of an application as they would be shown now. Reads its folders.
    IconRow iconRow(const std::string& bundleID) const;

    /// An icon that the store has just saved: it comes last in the row and is chosen. A path that is not a
    /// pending icon of this application, or is not there, is refused.
    bool addIcon(const std::string& bundleID, const MacPath& pendingIcon);
    /// The icon at this place of the row. A pending one is deleted at once, a permanent one when the changes
    /// are applied. The choice stays with its icon; when that is the removed one, the application's own is
    /// chosen.
    bool removeIcon(const std::string& bundleID, int displayIndex);
    /// A place in the row or behind it among the theme icons offered; nothing = the application's own icon.
    bool selectIcon(const std::string& bundleID, std::optional<int> index);

    void hideThemeIcon(const std::string& themeID, const std::string& iconFileName);
    /// Takes a staged hide back.
    void unhideThemeIcon(const std::string& themeID, const std::string& iconFileName);
    void deleteThemeIcon(const std::string& themeID, const std::string& iconFileName);
    void deleteTheme(const std::string& themeID);

    /// A font and a reset exclude each other: staging one takes the other back. Nothing takes the font back.
    void setPendingFont(const std::optional<std::string>& font);
    void setPendingReset(bool reset);

    /// Records what an application's row has become. Its entry is dropped when that is what is applied.
    void updatePendingState(const std::string& bundleID, const std::vector<MacPath>& pendingPaths,
                            const std::set<int>& hiddenIndices, std::optional<int> selectedIndex);

    /// Whether the recovery file holds anything. Changes nothing.
    bool hasRecoverableChanges() const;
    /// Takes the staged changes from the recovery file. Icons that an interrupted apply had moved are found
    /// where they are now, and what is missing or not to be trusted is left out, each with a log line. False
    /// when the file is missing or cannot be read; it is left as it is then, and nothing is staged.
    bool recover();
    /// Drops everything that is staged, the pending icons and the recovery file.
    void clearAllPendingChanges();

private:
    void updatePendingChangesState();
    void savePendingChangesToTempFile();

    FileManager& m_files;
    Clock& m_clock;
    SettingsManager& m_settings;
    IconStore& m_store;
    IconTransfer& m_transfer;
    NotificationCenter& m_notifications;

    bool m_hasPendingChanges = false;
    bool m_isInitializing = true; ///< nothing is saved while it is set
    StagedChanges m_staged;
    std::optional<std::string> m_activeFont;
    MacPath m_tavrikAppsURL;
    MacPath m_pendingChangesBaseURL;
    MacPath m_tempFileURL;
};

} // namespace tavrik
