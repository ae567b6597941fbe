#include "backups/PlainTitles.h"

#include "fonts/FontReplacer.h"
#include "fonts/PlainNames.h"
#include "fonts/ShownStyles.h"
#include "model/SettingsManager.h"
#include "platform/Bookmarks.h"
#include "platform/Log.h"
#include "platform/Sqlite.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace tavrik {

struct PlainTitles::Pass {
    const char* query;
    const char* update;
    std::size_t most;
    const char* what;      ///< "app"
    const char* duplicate; ///< the line before the row's number
};

PlainTitles::PlainTitles(sqlite::Connection& database, const Bookmarks& bookmarks, SettingsManager& settings,
                         const FontReplacer& replacer)
    : m_database(database),
      m_bookmarks(bookmarks),
      m_settings(settings),
      m_replacer(replacer),
      m_shown(shownStyles(settings, replacer)) {}

std::optional<std::size_t> PlainTitles::cleanApps() {
    static constexpr Pass kApps{
        "SELECT DISTINCT ROWID, title, bookmark FROM apps WHERE title IS NOT NULL ORDER BY ROWID",
        "UPDATE apps SET title = ? WHERE ROWID = ?", kMostApps, "app",
        "  🔵 DEBUG: Skipping duplicate rowId: "};
    return run(kApps,
               [this](const sqlite::Statement& row, const std::string& title) { return appName(title, row); });
}

std::optional<std::size_t> PlainTitles::cleanFolders() {
    static constexpr Pass kFolders{
        "SELECT DISTINCT item_id, title FROM groups WHERE title IS NOT NULL ORDER BY item_id",
        "UPDATE groups SET title = ? WHERE item_id = ?", kMostFolders, "folder",
        "  🔵 DEBUG: Skipping duplicate folder itemId: "};
    const auto backups = m_settings.getAllFolderBackups();
    return run(kFolders, [&](const sqlite::Statement& row, const std::string& title) {
        std::string plain = m_replacer.convertToNormal(title);
        const auto found = backups.find(RowID{row.int64(0).value_or(0)});
        const auto backup = found == backups.end() ? std::nullopt : std::optional(found->second);
        const TitleStyle& style = styleShownBy(title, backup, m_shown, m_replacer);
        return plain == title && !style ? plain : nameForReset(plain, backup, style).base;
    });
}

std::optional<std::size_t> PlainTitles::run(const Pass& pass, const Naming& nameOf) {
    auto rows = m_database.prepare(pass.query);
    if (!rows) {
        log("  🔵 DEBUG: Failed to prepare " + std::string(pass.what) + "s query");
        return m_database.lastErrorCode() == sqlite::kNoSuchThing ? std::optional<std::size_t>(0)
                                                                  : std::nullopt;
    }
    std::vector<std::pair<std::int64_t, std::string>> names;
    std::optional<std::int64_t> last;
    std::size_t count = 0;
    sqlite::Step step = rows.step();
    for (; step == sqlite::Step::row; step = rows.step()) {
        if (++count > pass.most) {
            log("  ⚠️ WARNING: Exceeded maximum " + std::string(pass.what) + " count (" +
                std::to_string(pass.most) + "), breaking loop");
            break;
        }
        const auto row = rows.int64(0);
        const auto title = rows.text(1);
        if (!row || !title)
            continue;
        // They come in order.
        if (std::exchange(last, row) == row) {
            log(pass.duplicate + std::to_string(*row));
            continue;
        }
        if (std::string name = nameOf(rows, *title); name != *title)
            names.emplace_back(*row, std::move(name));
    }
    if (step == sqlite::Step::failed)
        return std::nullopt;
    rows = {};
    if (names.empty())
        return 0;

    auto update = m_database.prepare(pass.update);
    if (!update)
        return std::nullopt;
    for (const auto& [row, name] : names) {
        update.reset();
        update.bind(1, std::string_view(name));
        update.bind(2, row);
        if (update.step() != sqlite::Step::done)
            return std::nullopt;
    }
    return names.size();
}

/// Some letters look alike in a style and in plain text: a title of those alone is styled as soon as the style
/// is shown.
bool PlainTitles::isStyled(const std::string& title, const std::string& plain) const {
    return title != plain || std::ranges::any_of(m_shown, [&](const TitleStyle& style) {
               return style && !style->isMultiCase && m_replacer.convert(plain, style->fontName) == title;
           });
}

std::string PlainTitles::appName(const std::string& title, const sqlite::Statement& row) const {
    std::string plain = m_replacer.convertToNormal(title);
    if (!isStyled(title, plain) || !hasLostCapitals(title, plain, m_replacer))
        return plain;
    const auto bookmark = row.blob(2);
    const auto bundle = bookmark ? m_bookmarks.recordedPath(*bookmark) : Error{};
    std::string fileName = bundle ? bundleName(*bundle) : std::string();
    return isSameIgnoringCase(fileName, plain) ? fileName : plain;
}

} // namespace tavrik
