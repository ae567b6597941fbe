#include "fonts/LaunchpadTitles.h"

#include "fonts/FontReplacer.h"
#include "fonts/PlainNames.h"
#include "fonts/TitleChanges.h"
#include "model/SettingsManager.h"
#include "platform/Bookmarks.h"
#include "platform/Log.h"
#include "platform/Sqlite.h"

#include <set>
#include <utility>

namespace tavrik {

namespace {

constexpr const char* kApps = "    SELECT a.ROWID, a.title, a.bundleid, a.bookmark\n"
                              "    FROM apps a\n"
                              "    WHERE a.title IS NOT NULL AND a.bookmark IS NOT NULL";
constexpr const char* kAppUpdate = "UPDATE apps SET title = ? WHERE ROWID = ?";
constexpr const char* kFolders = "SELECT item_id, title FROM groups WHERE title IS NOT NULL";
constexpr const char* kFolderUpdate = "UPDATE groups SET title = ? WHERE item_id = ?";
constexpr const char* kFolderIDs = "SELECT item_id FROM groups";

} // namespace

LaunchpadTitles::LaunchpadTitles(sqlite::Connection& database, const Bookmarks& bookmarks,
                                 SettingsManager& settings, const FontReplacer& replacer)
    : m_database(database),
      m_bookmarks(bookmarks),
      m_settings(settings),
      m_replacer(replacer) {}

void LaunchpadTitles::styleApps(const std::string& fontName) {
    if (const auto count = rewriteApps(fontName))
        log("Applied font to " + std::to_string(*count) + " Launchpad app(s)");
}

void LaunchpadTitles::resetApps() {
    if (const auto count = rewriteApps({}))
        log("Reset font for " + std::to_string(*count) + " Launchpad app(s)");
}

std::optional<std::size_t> LaunchpadTitles::rewriteApps(std::string_view fontName) {
    TitleChanges changes(m_database, "Launchpad's apps");
    const bool isRead = changes.read(kApps, [&](const sqlite::Statement& app) {
        const auto row = app.int64(0);
        const auto title = app.text(1);
        const auto bookmark = app.blob(3);
        if (!row || !title || !bookmark)
            return;
        std::string wanted = m_replacer.convert(plainAppName(*title, *bookmark), fontName);
        if (wanted != *title)
            changes.add(*row, std::move(wanted));
    });
    return isRead && changes.write(kAppUpdate) ? changes.commit() : std::nullopt;
}

std::string LaunchpadTitles::plainAppName(const std::string& title, ByteView bookmark) const {
    // A bookmark resolves only to what is there: to ask again would double what a row costs.
    if (const auto bundle = m_bookmarks.resolve(bookmark))
        return plainTitle(title, *bundle, {}, m_replacer);
    const auto gone = m_bookmarks.recordedPath(bookmark);
    return plainTitle(title, std::nullopt, gone ? *gone : MacPath(), m_replacer);
}

bool LaunchpadTitles::styleFolders(const FontState& style, const std::vector<TitleStyle>& shown) {
    log("Applying " + style.fontName + " to folders (multi-case: " + (style.isMultiCase ? "true" : "false") +
        ")");
    const auto count = rewriteFolders(style.fontName, shown,
                                      [&](const auto& plain, const auto& backup, const TitleStyle& current) {
                                          return nameForStyle(plain, backup, current, style);
                                      });
    if (count && *count > 0)
        log("Applied font to " + std::to_string(*count) + " folder(s)");
    return count.has_value();
}

bool LaunchpadTitles::resetFolders(const std::vector<TitleStyle>& shown) {
    const TitleStyle& current = shown.back();
    log(std::string("Resetting folder fonts (current was multi-case: ") +
        (current && current->isMultiCase ? "true" : "false") + ")");
    return rewriteFolders({}, shown, nameForReset).has_value();
}

std::optional<std::size_t> LaunchpadTitles::rewriteFolders(std::string_view fontName,
                                                           const std::vector<TitleStyle>& shown,
                                                           const Naming& naming) {
    TitleChanges changes(m_database, "Launchpad's folders");
    const auto known = m_settings.getAllFolderBackups();
    std::map<RowID, FolderBackup> backups;
    const bool isRead = changes.read(kFolders, [&](const sqlite::Statement& folder) {
        const auto row = folder.int64(0);
        const auto title = folder.text(1);
        // Pages are groups too, and have no name.
        if (!row || !title || title->empty())
            return;
        const auto found = known.find(RowID{*row});
        const auto backup = found == known.end() ? std::nullopt : std::optional(found->second);
        FolderName name =
            naming(m_replacer.convertToNormal(*title), backup, styleShownBy(*title, backup, shown, m_replacer));
        for (const std::string& line : name.lines)
            log(line);
        if (name.save)
            backups.emplace(RowID{*row}, std::move(*name.save));
        if (std::string wanted = m_replacer.convert(name.base, fontName); wanted != *title)
            changes.add(*row, std::move(wanted));
    });
    if (!isRead || !changes.write(kFolderUpdate))
        return std::nullopt;
    // The commit may take the last copy of a name's capitals, so the backup must be safe before it.
    if (!m_settings.saveFolderBackups(backups)) {
        log("WARNING: The titles of Launchpad's folders stay as they were: their backups cannot be saved");
        return std::nullopt;
    }
    return changes.commit();
}

void LaunchpadTitles::removeOrphanedBackups() {
    auto rows = m_database.prepare(kFolderIDs);
    if (!rows)
        return;
    std::set<RowID> folders;
    sqlite::Step step = rows.step();
    for (; step == sqlite::Step::row; step = rows.step())
        if (const auto row = rows.int64(0))
            folders.insert(RowID{*row});
    if (step == sqlite::Step::failed || folders.empty())
        return;
    std::vector<RowID> orphans;
    for (const auto& [folder, backup] : m_settings.getAllFolderBackups())
        if (!folders.contains(folder))
            orphans.push_back(folder);
    if (orphans.empty())
        return;
    m_settings.removeFolderBackups(orphans);
    log(std::to_string(orphans.size()) + " orphaned folder backup(s)");
}

} // namespace tavrik
