#pragma once

#include "fonts/FolderNames.h"
#include "platform/Bytes.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavrik {

class Bookmarks;
class FontReplacer;
class SettingsManager;

namespace sqlite {
class Connection;
}

/// The titles in an open Launchpad database. Each pass stands in one transaction: a failure or a kill in the
/// middle, or a database that another program has locked, leaves every title of the pass as it was, which is
/// then logged. Titles have no part in the database's own triggers. One thread.
class LaunchpadTitles {
public:
    LaunchpadTitles(sqlite::Connection& database, const Bookmarks& bookmarks, SettingsManager& settings,
                    const FontReplacer& replacer);

    /// See `plainTitle`.
    void styleApps(const std::string& fontName);
    void resetApps();

    /// `shown` are the styles that the titles may show, oldest first and never none. The folders' backups are
    /// on disk before the titles are. False when the titles stand as they stood.
    [[nodiscard]] bool styleFolders(const FontState& style, const std::vector<TitleStyle>& shown);
    [[nodiscard]] bool resetFolders(const std::vector<TitleStyle>& shown);

    /// Forgets the backups of folders that are gone. A database that cannot be read or has no folder forgets
    /// none.
    void removeOrphanedBackups();

private:
    using Naming = std::function<FolderName(const std::string& plain, const std::optional<FolderBackup>& backup,
                                            const TitleStyle& current)>;

    /// How many titles were changed; nothing when they stand as they stood. No font name is plain text.
    std::optional<std::size_t> rewriteApps(std::string_view fontName);
    std::optional<std::size_t> rewriteFolders(std::string_view fontName, const std::vector<TitleStyle>& shown,
                                              const Naming& naming);
    std::string plainAppName(const std::string& title, ByteView bookmark) const;

    sqlite::Connection& m_database;
    const Bookmarks& m_bookmarks;
    SettingsManager& m_settings;
    const FontReplacer& m_replacer;
};

} // namespace tavrik
