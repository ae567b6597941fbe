#pragma once

#include "fonts/FolderNames.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tavrik {

class Bookmarks;
class FontReplacer;
class SettingsManager;

namespace sqlite {
class Connection;
class Statement;
} // namespace sqlite

/// Gives the titles in a copy of the Launchpad database their plain names, capitals included. What a style that
/// writes both cases alike took away comes back as far as it is known: for an application from its bundle's
/// file name, for a folder from its backup. Nothing is saved in the settings. One thread; within the caller's
/// transaction.
class PlainTitles {
public:
    PlainTitles(sqlite::Connection& database, const Bookmarks& bookmarks, SettingsManager& settings,
                const FontReplacer& replacer);

    static constexpr std::size_t kMostApps = 50'000;
    static constexpr std::size_t kMostFolders = 10'000;

    /// How many titles were changed; rows beyond the limit stay as they are, with a log line. A database
    /// without the table has no titles. Nothing when it cannot be read or written: it is of no use then.
    std::optional<std::size_t> cleanApps();
    std::optional<std::size_t> cleanFolders();

private:
    struct Pass;
    /// The plain name of the row that the statement stands at.
    using Naming = std::function<std::string(const sqlite::Statement& row, const std::string& title)>;

    std::optional<std::size_t> run(const Pass& pass, const Naming& nameOf);
    bool isStyled(const std::string& title, const std::string& plain) const;
    std::string appName(const std::string& title, const sqlite::Statement& row) const;

    sqlite::Connection& m_database;
    const Bookmarks& m_bookmarks;
    SettingsManager& m_settings;
    const FontReplacer& m_replacer;
    const std::vector<TitleStyle> m_shown;
};

} // namespace tavrik
